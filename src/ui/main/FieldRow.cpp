#include "FieldRow.h"

#include "PasswordStrength.h"
#include "style/Style.h"
#include "style/Theme.h"
#include "widgets/Badge.h"
#include "widgets/Controls.h"
#include "widgets/StrengthMeter.h"

#include <QBoxLayout>
#include <QFontDatabase>
#include <QMenu>
#include <QMouseEvent>

namespace {

// Their number tells nothing of the secret. That of a code is known anyway.
const int dotCount = 14;
const int codeDotCount = 3;

// A word that may be longer than the row is wide.
const int longWord = 30;

/// The text with a chance to break the line after each character.
QString breakable(const QString &text)
{
    QString parts;
    for (const QChar letter : text) {
        parts.append(letter);
        if (!letter.isHighSurrogate())
            parts.append(QChar(0x200B));
    }
    return parts;
}

/// The text with such chances in its long words alone.
QString wrappable(const QString &text)
{
    QStringList words = text.split(QLatin1Char(' '));
    for (QString &word : words) {
        if (word.size() > longWord)
            word = breakable(word);
    }
    return words.join(QLatin1Char(' '));
}

} // namespace

FieldRow::FieldRow(const ItemField &field, const QString &value, const QString &copied,
                   const Theme &theme, QWidget *parent)
    : QFrame(parent)
    , m_field(field)
    , m_value(value)
    , m_copied(copied)
    , m_theme(theme)
    , m_text(makeValue())
    , m_texts(new QVBoxLayout)
    , m_line(new QHBoxLayout)
    , m_row(new QHBoxLayout(this))
{
    setObjectName(QLatin1String(field.property) + QStringLiteral("Row"));
    m_line->setSpacing(Style::margin);
    m_line->addWidget(m_text, 1);
    m_texts->setSpacing(3);
    m_texts->addWidget(makeLabel(itemFieldLabel(field), "label", this));
    m_texts->addLayout(m_line);
    m_row->setContentsMargins(14, 9, 14, 9);
    m_row->setSpacing(4);
    m_row->addLayout(m_texts, 1);
    addButtons();
    if (m_field.isSecret())
        setRevealed(false);
}

QLabel *FieldRow::makeValue()
{
    const char *tone = m_field.form == ItemField::Link ? "link" : "value";
    auto *text = makeLabel(m_field.isSecret() ? QString() : wrappable(m_value), tone, this);
    text->setWordWrap(true);
    text->setAccessibleName(m_field.isSecret() ? tr("%1, hidden").arg(itemFieldLabel(m_field))
                                               : m_value);
    return text;
}

QToolButton *FieldRow::addButton(const QString &icon, const QString &name, const char *suffix)
{
    QToolButton *button = makeIconButton(m_theme.icon(icon, Palette::Muted), name, "plain", this);
    button->setObjectName(QLatin1String(m_field.property) + QLatin1String(suffix));
    m_row->addWidget(button);
    return button;
}

void FieldRow::addButtons()
{
    if (m_field.isSecret()) {
        m_reveal = addButton(QStringLiteral("eye"), tr("View text under dots"), "RevealButton");
        m_reveal->setCheckable(true);
        connect(m_reveal, &QToolButton::toggled, this, &FieldRow::setRevealed);
    }
    if (m_field.form == ItemField::Link) {
        QToolButton *open =
            addButton(QStringLiteral("external-link"), tr("Open in browser"), "OpenButton");
        connect(open, &QToolButton::clicked, this, [this] { Q_EMIT openRequested(m_value); });
    }
    if (m_field.has(ItemField::NoCopy))
        return;
    QToolButton *copy = addButton(QStringLiteral("copy"), tr("Copy to clipboard"), "CopyButton");
    copy->setAccessibleName(tr("Copy to clipboard: %1").arg(itemFieldLabel(m_field)));
    connect(copy, &QToolButton::clicked, this, [this] { Q_EMIT copyRequested(m_copied); });
    setCursor(Qt::PointingHandCursor);
    setToolTip(tr("Click to copy"));
}

void FieldRow::addGenerator()
{
    QToolButton *make =
        addButton(QStringLiteral("wand"), tr("Generate password"), "GenerateButton");
    connect(make, &QToolButton::clicked, this, &FieldRow::generatorRequested);
    // Between the eye and the copy.
    m_row->removeWidget(make);
    m_row->insertWidget(m_row->count() - 1, make);
}

void FieldRow::addChoices(const QStringList &texts)
{
    m_choose = addButton(QStringLiteral("chevron-down"),
                         tr("Change: %1").arg(itemFieldLabel(m_field)), "ChooseButton");
    auto *menu = new QMenu(m_choose);
    for (const QString &text : texts) {
        const int index = menu->actions().size();
        QAction *action = menu->addAction(text);
        action->setCheckable(true);
        action->setChecked(text == m_value);
        connect(action, &QAction::triggered, this, [this, index] { Q_EMIT chosen(index); });
    }
    m_choose->setMenu(menu);
    m_choose->setPopupMode(QToolButton::InstantPopup);
    setCursor(Qt::PointingHandCursor);
}

void FieldRow::setStrength(int level)
{
    auto *meter = new StrengthMeter(m_theme, this);
    meter->setLevel(level);
    meter->hideWord();
    m_texts->addWidget(meter, 0, Qt::AlignLeft);
    static const Palette::Role roles[] = {Palette::Terrible, Palette::Weak, Palette::Good,
                                          Palette::Strong};
    setBadge(passwordStrengthLabel(level), roles[qBound(1, level, 4) - 1]);
}

void FieldRow::setBadge(const QString &text, Palette::Role role)
{
    auto *badge = new Badge(text, role, m_theme, this);
    badge->setObjectName(QLatin1String(m_field.property) + QStringLiteral("Badge"));
    m_text->setWordWrap(false);
    m_line->setStretch(0, 0);
    m_line->addWidget(badge);
    m_line->addStretch(1);
}

void FieldRow::setRevealed(bool revealed)
{
    // A long password takes the lines that it needs; dots stand beside their badge.
    const bool hasBadge = m_line->count() > 1;
    m_text->setWordWrap(revealed || !hasBadge);
    m_line->setStretch(0, revealed || !hasBadge ? 1 : 0);
    if (revealed) {
        // In letters of one width that do not look alike.
        const QFont fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);
        m_text->setStyleSheet(QStringLiteral("font-family: '%1';").arg(fixed.family()));
        m_text->setText(breakable(m_value));
    } else {
        const int dots = m_field.form == ItemField::SecurityCode ? codeDotCount : dotCount;
        m_text->setStyleSheet(QStringLiteral("letter-spacing: 2px;"));
        m_text->setText(QString(dots, QChar(0x2022)));
    }
    m_reveal->setIcon(
        m_theme.icon(revealed ? QStringLiteral("eye-off") : QStringLiteral("eye"), Palette::Muted));
}

void FieldRow::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton || !rect().contains(event->pos()))
        return;
    if (m_choose)
        m_choose->showMenu();
    else if (!m_field.has(ItemField::NoCopy))
        Q_EMIT copyRequested(m_copied);
}
