#pragma once

#include <QSet>
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

/// A window is no larger than the screen of a small laptop must be taken to be.
QStringList sizeFaults(const QWidget &window);

/// Texts stand out from their ground, as painted.
QStringList contrastFaults(QWidget &window);

/// Texts with words in Latin letters that are neither known nor names that all languages share.
QStringList latinTexts(QWidget &window, const QSet<QString> &knownWords);

/// The words of a text that are written in Latin letters.
QStringList latinWords(const QString &text);

} // namespace WindowChecks
