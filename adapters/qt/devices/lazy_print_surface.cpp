#include "adapters/qt/devices/lazy_print_surface.h"

namespace tessara {

void LazyPrintSurface::SetDestination(const PrintDestination& destination) {
  Surface().SetDestination(destination);
}
void LazyPrintSurface::SetCopies(int copies) {
  Surface().SetCopies(copies);
}
void LazyPrintSurface::SetFontName(const Text& name) {
  Surface().SetFontName(name);
}
void LazyPrintSurface::SetFontSize(double points) {
  Surface().SetFontSize(points);
}
void LazyPrintSurface::SetBold(bool bold) {
  Surface().SetBold(bold);
}
void LazyPrintSurface::SetItalic(bool italic) {
  Surface().SetItalic(italic);
}
void LazyPrintSurface::PrintLine(const Text& text) {
  Surface().PrintLine(text);
}
void LazyPrintSurface::DrawLine(double x1, double y1, double x2, double y2) {
  Surface().DrawLine(x1, y1, x2, y2);
}
double LazyPrintSurface::CurrentY() const {
  return Surface().CurrentY();
}
double LazyPrintSurface::PageWidth() const {
  return Surface().PageWidth();
}
double LazyPrintSurface::PageHeight() const {
  return Surface().PageHeight();
}
double LazyPrintSurface::TextWidth(const Text& text) const {
  return Surface().TextWidth(text);
}
double LazyPrintSurface::TextHeight(const Text& text) const {
  return Surface().TextHeight(text);
}
void LazyPrintSurface::NewPage() {
  Surface().NewPage();
}
void LazyPrintSurface::EndDocument() {
  Surface().EndDocument();
}
void LazyPrintSurface::DropDocument() {
  // No document has begun without the module, which may not be there.
  if (PrintModule* module = printing_.LoadedModule()) module->Surface().DropDocument();
}

}  // namespace tessara
