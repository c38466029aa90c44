#include "DatePopup.h"

#include "style/Style.h"
#include "style/Theme.h"

#include <QBoxLayout>
#include <QCalendarWidget>
#include <QLocale>
#include <QPainter>
#include <QScreen>
#include <QTextCharFormat>
#include <QToolButton>

namespace {

const QSize calendarSize(280, 252);

/// Days in the colours of the theme, the chosen one on a round ground, today with a ring.
class DayCalendar : public QCalendarWidget
{
public:
    DayCalendar(const Theme &theme, QWidget *parent)
        : QCalendarWidget(parent)
        , m_palette(theme.palette())
    {
    }

protected:
    void paintCell(QPainter *painter, const QRect &cell, const QDate &date) const override
    {
        const bool chosen = date == selectedDate();
        const bool ofMonth = date.month() == monthShown();
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        const QRectF round = QRectF(cell).adjusted(1.5, 1.5, -1.5, -1.5);
        painter->setPen(date == QDate::currentDate() ? m_palette.color(Palette::Accent)
                                                     : QColor(Qt::transparent));
        painter->setBrush(chosen ? m_palette.color(Palette::Accent) : QColor(Qt::transparent));
        painter->drawRoundedRect(round, Style::corner - 2, Style::corner - 2);
        painter->setPen(m_palette.color(chosen    ? Palette::OnAccent
                                        : ofMonth ? Palette::Text
                                                  : Palette::Muted));
        painter->drawText(cell, Qt::AlignCenter, QString::number(date.day()));
        painter->restore();
    }

private:
    const Palette &m_palette;
};

} // namespace

DatePopup::DatePopup(const Theme &theme, const QLocale &locale, QWidget *parent)
    : QFrame(parent, Qt::Popup)
    , m_calendar(new DayCalendar(theme, this))
{
    setObjectName(QStringLiteral("popup"));
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_StyledBackground);
    m_calendar->setLocale(locale);
    m_calendar->setFirstDayOfWeek(locale.firstDayOfWeek());
    m_calendar->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    m_calendar->setHorizontalHeaderFormat(QCalendarWidget::ShortDayNames);
    m_calendar->setMinimumDate(QDate(1000, 1, 1));
    m_calendar->setMaximumDate(QDate(9999, 12, 31));
    m_calendar->setAccessibleName(tr("Calendar"));
    QTextCharFormat quiet;
    quiet.setForeground(theme.palette().color(Palette::Muted));
    quiet.setBackground(theme.palette().color(Palette::Window));
    m_calendar->setHeaderTextFormat(quiet);
    for (const Qt::DayOfWeek day : {Qt::Saturday, Qt::Sunday})
        m_calendar->setWeekdayTextFormat(day, quiet);
    m_calendar->setFixedSize(Style::scaled(calendarSize.width()),
                             Style::scaled(calendarSize.height()));
    const QVector<QPair<QString, QString>> arrows = {
        {QStringLiteral("qt_calendar_prevmonth"), QStringLiteral("chevron-left")},
        {QStringLiteral("qt_calendar_nextmonth"), QStringLiteral("chevron-right")}};
    for (const auto &arrow : arrows) {
        if (auto *button = m_calendar->findChild<QToolButton *>(arrow.first))
            button->setIcon(theme.icon(arrow.second, Palette::Text));
    }
    auto *all = new QVBoxLayout(this);
    all->setContentsMargins(Style::spacing, Style::spacing, Style::spacing, Style::spacing);
    all->addWidget(m_calendar);
    connect(m_calendar, &QCalendarWidget::activated, this, &DatePopup::choose);
    connect(m_calendar, &QCalendarWidget::clicked, this, &DatePopup::choose);
}

void DatePopup::choose(const QDate &date)
{
    // A click and the key both tell; the first one closes.
    if (!isVisible())
        return;
    close();
    Q_EMIT chosen(date);
}

void DatePopup::open(const QDate &date, const QWidget &at)
{
    m_calendar->setSelectedDate(date.isValid() ? date : QDate::currentDate());
    placePopup(*this, at);
    show();
    m_calendar->setFocus();
}

void placePopup(QWidget &popup, const QWidget &at)
{
    popup.adjustSize();
    const QRect screen = at.screen()->availableGeometry();
    QPoint place = at.mapToGlobal(QPoint(0, at.height() + 4));
    if (place.y() + popup.height() > screen.bottom())
        place = at.mapToGlobal(QPoint(0, -popup.height() - 4));
    place.setX(
        qBound(screen.left(), place.x(), qMax(screen.left(), screen.right() - popup.width())));
    place.setY(qMax(screen.top(), place.y()));
    popup.move(place);
}
