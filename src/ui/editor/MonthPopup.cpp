#include "MonthPopup.h"

#include "DatePopup.h"
#include "style/Style.h"
#include "style/Theme.h"
#include "widgets/Controls.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QLocale>
#include <QMap>

namespace {

const int columns = 4;
const int months = 12;
const int monthWidth = 56;

} // namespace

MonthPopup::MonthPopup(const Theme &theme, const QLocale &locale, QWidget *parent)
    : QFrame(parent, Qt::Popup)
    , m_title(makeLabel({}, "heading", this))
{
    setObjectName(QStringLiteral("popup"));
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_StyledBackground);
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(Style::spacing, Style::spacing, Style::spacing, Style::spacing);
    grid->setSpacing(4);
    m_title->setAlignment(Qt::AlignCenter);
    grid->addWidget(makeArrow(theme, QStringLiteral("chevron-left"), tr("Previous year"), -1), 0,
                    0);
    grid->addWidget(m_title, 0, 1, 1, columns - 2);
    grid->addWidget(makeArrow(theme, QStringLiteral("chevron-right"), tr("Next year"), 1), 0,
                    columns - 1, Qt::AlignRight);
    for (int month = 1; month <= months; ++month) {
        auto *button = new QToolButton(this);
        button->setText(locale.standaloneMonthName(month, QLocale::ShortFormat));
        button->setAccessibleName(locale.standaloneMonthName(month));
        button->setCheckable(true);
        button->setFixedSize(Style::scaled(monthWidth), Style::controlHeight);
        connect(button, &QToolButton::clicked, this, [this, month] {
            close();
            Q_EMIT chosen(QDate(m_year, month, 1));
        });
        grid->addWidget(button, 1 + (month - 1) / columns, (month - 1) % columns);
        button->installEventFilter(this);
        m_months.append(button);
    }
}

QToolButton *MonthPopup::makeArrow(const Theme &theme, const QString &icon, const QString &name,
                                   int step)
{
    QToolButton *arrow = makeIconButton(theme.icon(icon, Palette::Text), name, "plain", this);
    connect(arrow, &QToolButton::clicked, this, [this, step] { this->step(step); });
    return arrow;
}

void MonthPopup::open(const QDate &date, const QWidget &at)
{
    m_date = date.isValid() ? date : QDate::currentDate();
    m_year = m_date.year();
    mark();
    placePopup(*this, at);
    show();
    m_months.at(m_date.month() - 1)->setFocus();
}

void MonthPopup::step(int years)
{
    m_year = qBound(1, m_year + years, 9999);
    mark();
}

void MonthPopup::mark()
{
    m_title->setText(QString::number(m_year));
    for (int month = 1; month <= months; ++month)
        m_months.at(month - 1)->setChecked(m_date.year() == m_year && m_date.month() == month);
}

bool MonthPopup::eventFilter(QObject *watched, QEvent *event)
{
    // Before the buttons, which have a use of their own for the arrows.
    const int month = m_months.indexOf(static_cast<QToolButton *>(watched));
    if (month >= 0 && event->type() == QEvent::KeyPress &&
        onKey(static_cast<QKeyEvent *>(event)->key(), month))
        return true;
    return QFrame::eventFilter(watched, event);
}

bool MonthPopup::onKey(int key, int month)
{
    static const QMap<int, int> steps = {
        {Qt::Key_Left, -1}, {Qt::Key_Right, 1}, {Qt::Key_Up, -columns}, {Qt::Key_Down, columns}};
    if (key == Qt::Key_PageUp || key == Qt::Key_PageDown)
        step(key == Qt::Key_PageUp ? -1 : 1);
    else if (steps.contains(key))
        m_months.at(qBound(0, month + steps.value(key), months - 1))->setFocus();
    else if (key == Qt::Key_Return || key == Qt::Key_Enter)
        m_months.at(month)->click();
    else
        return false;
    return true;
}
