#pragma once

#include "adapters/qt/devices/print_module.h"

namespace tessara {

/// The print surface of the module, which its first use loads.
class LazyPrintSurface : public PrintSurface {
 public:
  explicit LazyPrintSurface(PrintModuleSource& printing) : printing_(printing) {}

  void SetDestination(const PrintDestination& destination) override;
  void SetCopies(int copies) override;
  void SetFontName(const Text& name) override;
  void SetFontSize(double points) override;
  void SetBold(bool bold) override;
  void SetItalic(bool italic) override;
  void PrintLine(const Text& text) override;
  void DrawLine(double x1, double y1, double x2, double y2) override;
  [[nodiscard]] double CurrentY() const override;
  [[nodiscard]] double PageWidth() const override;
  [[nodiscard]] double PageHeight() const override;
  [[nodiscard]] double TextWidth(const Text& text) const override;
  [[nodiscard]] double TextHeight(const Text& text) const override;
  void NewPage() override;
  void EndDocument() override;
  void DropDocument() override;

 private:
  [[nodiscard]] PrintSurface& Surface() const { return printing_.Module().Surface(); }

  PrintModuleSource& printing_;
};

}  // namespace tessara
