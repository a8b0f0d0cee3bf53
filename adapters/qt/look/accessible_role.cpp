#include "adapters/qt/look/accessible_role.h"

#include <QAccessibleWidget>
#include <QVariant>

namespace tessara {

namespace {

constexpr const char* kRole = "tessaraAccessibleRole";

QAccessibleInterface* MakeInterface(const QString& /*className*/, QObject* object) {
  if (object == nullptr || !object->isWidgetType()) return nullptr;
  const QVariant role = object->property(kRole);
  if (!role.isValid()) return nullptr;
  return new QAccessibleWidget(static_cast<QWidget*>(object),
                               static_cast<QAccessible::Role>(role.toInt()));
}

}  // namespace

QWidget& WithRole(QWidget& widget, QAccessible::Role role) {
  // A second time it changes nothing.
  QAccessible::installFactory(MakeInterface);
  widget.setProperty(kRole, static_cast<int>(role));
  return widget;
}

}  // namespace tessara
