#include "LineInput.h"

#include "CardNumber.h"
#include "CountryField.h"
#include "DatePopup.h"
#include "DateText.h"
#include "FieldRules.h"
#include "FieldText.h"
#include "MonthPopup.h"
#include "style/Theme.h"
#include "widgets/BrandMark.h"
#include "widgets/TextField.h"

#include <QAction>
#include <QSignalBlocker>

#include <algorithm>

using PMFieldTypes::Date;

namespace {

/// The place behind as many digits as there were before the cursor.
int placeAfter(const QString &text, int digits)
{
    int place = 0;
    for (; place < text.size() && digits > 0; ++place) {
        if (text.at(place).isDigit())
            --digits;
    }
    return place;
}

} // namespace

LineInput::LineInput(const ItemField &field, const InputContext &context, QWidget *parent)
    : FieldInput(field, parent)
    , m_theme(context.theme)
    , m_locale(context.locale)
    , m_line(field.form == ItemField::Country ? static_cast<QLineEdit *>(new CountryField(
                                                    CountryField::Names, context.theme, this))
                                              : new TextField(this))
{
    place(m_line, 1, itemFieldLabel(field),
          QLatin1String(field.property) + QStringLiteral("Field"));
    if (field.form == ItemField::Link)
        addOpen();
    if (isDate())
        addCalendar();
    if (field.form == ItemField::CardNumber)
        addBrand();
    if (field.form == ItemField::Number || field.form == ItemField::CardNumber)
        m_line->setInputMethodHints(Qt::ImhPreferNumbers);
    connect(m_line, &QLineEdit::textChanged, this, &FieldInput::edited);
}

bool LineInput::isDate() const
{
    return field().form == ItemField::Date || field().form == ItemField::Month;
}

void LineInput::addOpen()
{
    m_line->setPlaceholderText(QStringLiteral("https://"));
    QAction *open = m_line->addAction(m_theme.icon(QStringLiteral("external-link"), Palette::Muted),
                                      QLineEdit::TrailingPosition);
    open->setText(tr("Open in browser"));
    open->setToolTip(tr("Open in browser (Alt+Return)"));
    open->setShortcut(QKeySequence(QStringLiteral("Alt+Return")));
    open->setShortcutContext(Qt::WidgetShortcut);
    connect(open, &QAction::triggered, this, [this] {
        const QString address = m_line->text();
        if (!address.isEmpty() && FieldRules::isUrl(address))
            Q_EMIT openRequested(FieldRules::completeUrl(address));
    });
}

void LineInput::addCalendar()
{
    m_line->setPlaceholderText(field().form == ItemField::Date
                                   ? tr("e.g. %1").arg(DateText::example(m_locale))
                                   : tr("MM / YYYY"));
    QAction *open = m_line->addAction(m_theme.icon(QStringLiteral("calendar"), Palette::Muted),
                                      QLineEdit::TrailingPosition);
    open->setObjectName(QStringLiteral("calendarAction"));
    open->setText(tr("Choose a date"));
    open->setToolTip(tr("Choose a date (Alt+Down)"));
    open->setShortcut(QKeySequence(QStringLiteral("Alt+Down")));
    open->setShortcutContext(Qt::WidgetShortcut);
    connect(open, &QAction::triggered, this, &LineInput::openCalendar);
    connect(m_line, &QLineEdit::editingFinished, this, &LineInput::tidyDate);
}

void LineInput::addBrand()
{
    m_brand = new BrandMark(m_line);
    m_brand->attachTo(*m_line);
    connect(m_line, &QLineEdit::textEdited, this, &LineInput::groupDigits);
    connect(m_line, &QLineEdit::textChanged, this, &LineInput::showBrand);
}

void LineInput::openCalendar()
{
    const auto date = value().value<Date>();
    const QDate shown(date.year, date.month, qMax(1, date.day));
    const auto take = [this](const QDate &day) {
        // The day of a month that was stored with one means nothing.
        const bool isDay = field().form == ItemField::Date;
        const Date chosen{day.year(), day.month(), isDay ? day.day() : 0};
        m_line->setText(FieldText::fromValue(field(), QVariant::fromValue(chosen), m_locale));
        m_line->setFocus();
    };
    if (field().form == ItemField::Date) {
        auto *popup = new DatePopup(m_theme, m_locale, this);
        connect(popup, &DatePopup::chosen, this, take);
        popup->open(shown, *m_line);
    } else {
        auto *popup = new MonthPopup(m_theme, m_locale, this);
        connect(popup, &MonthPopup::chosen, this, take);
        popup->open(shown, *m_line);
    }
}

void LineInput::groupDigits()
{
    const QString before = m_line->text().left(m_line->cursorPosition());
    const int digits = static_cast<int>(
        std::count_if(before.begin(), before.end(), [](QChar letter) { return letter.isDigit(); }));
    const QString grouped = CardNumber::grouped(m_line->text());
    if (grouped == m_line->text())
        return;
    const QSignalBlocker blocker(m_line);
    m_line->setText(grouped);
    m_line->setCursorPosition(placeAfter(grouped, digits));
}

void LineInput::showBrand()
{
    m_brand->setBrand(CardNumber::brand(m_line->text()));
}

void LineInput::tidyDate()
{
    const QVariant date = value();
    if (!FieldText::isUnderstood(field(), date))
        return;
    const QSignalBlocker blocker(m_line);
    m_line->setText(FieldText::fromValue(field(), date, m_locale));
}

QVariant LineInput::value() const
{
    // A country in other words than the table's stays in those unless it is typed anew.
    if (field().form == ItemField::Country && m_line->text() == m_givenText)
        return m_given;
    return FieldText::toValue(field(), m_line->text(), m_locale);
}

void LineInput::setValue(const QVariant &value)
{
    const QSignalBlocker blocker(m_line);
    m_line->setText(FieldText::fromValue(field(), value, m_locale));
    m_given = value;
    m_givenText = m_line->text();
    // A long value shows its beginning.
    m_line->setCursorPosition(0);
    if (m_brand)
        showBrand();
}

QWidget *LineInput::control() const
{
    return m_line;
}
