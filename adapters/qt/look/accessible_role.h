#pragma once

#include <QAccessible>
#include <QWidget>

namespace tessara {

/// Gives a widget that Qt has no word for its role for screen readers, and returns it. Before it
/// has a name: a role that was asked for once stays.
QWidget& WithRole(QWidget& widget, QAccessible::Role role);

}  // namespace tessara
