#pragma once

#include "adapters/qt/views/control_view.h"
#include "forms/controls/controls.h"

class QComboBox;

namespace tessara {

class ComboView : public ControlView {
 public:
  ComboView(ComboBox& combo, QWidget& parent, const ViewContext& context);

 protected:
  void FollowOwn(Aspect aspect) override;

 private:
  [[nodiscard]] QComboBox& Shown() const;
  void PassSelection(int index);
  void ShowItems();
};

}  // namespace tessara
