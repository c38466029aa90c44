#pragma once

class QString;
class QWidget;

/// What assistive tools hear although the keyboard is elsewhere.
namespace Announcer {

/// Makes assistive tools read messages of a SnackBar or a MessageLabel as alerts. Can be called
/// more than once.
void install();

/// Gives the widget the text as its name and tells it at once. An empty text is not told.
void announce(QWidget &widget, const QString &text);

} // namespace Announcer
