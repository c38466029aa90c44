#pragma once

#include <QFrame>

class QCalendarWidget;
class QLocale;
class Theme;

/// A calendar below a line, to choose a day. Deletes itself when it closes.
class DatePopup : public QFrame
{
    Q_OBJECT

public:
    DatePopup(const Theme &theme, const QLocale &locale, QWidget *parent);

    /// Opens at the widget; an invalid date shows today.
    void open(const QDate &date, const QWidget &at);

Q_SIGNALS:
    void chosen(const QDate &date);

private:
    void choose(const QDate &date);

    QCalendarWidget *m_calendar;
};

/// Puts a pop-up below a widget, or above it where the screen ends.
void placePopup(QWidget &popup, const QWidget &at);
