#pragma once

#include <QStringList>

class QWidget;

/// What every window has to be like. Each function tells what is wrong, naming the control.
namespace WindowChecks {

/// Whatever takes the keyboard has a name and a role for assistive tools.
QStringList nameFaults(QWidget &window);

/// Tab reaches every control, gets out of each, and does not go up within a column.
QStringList tabFaults(QWidget &window);

/// Texts have the room that they need.
QStringList clippingFaults(QWidget &window);

/// Texts stand out from their ground, as painted.
QStringList contrastFaults(QWidget &window);

} // namespace WindowChecks
