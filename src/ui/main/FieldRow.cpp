#include "FieldRow.h"

#include "style/Style.h"
#include "style/Theme.h"
#include "widgets/Controls.h"
#include "widgets/StrengthMeter.h"

#include <QBoxLayout>
#include <QFontDatabase>

namespace {

// Their number tells nothing of the secret.
const int dotCount = 14;

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

FieldRow::FieldRow(const ItemField &field, const QString &value, const Theme &theme,
                   QWidget *parent)
    : QWidget(parent)
    , m_field(field)
    , m_value(value)
    , m_theme(theme)
    , m_texts(new QVBoxLayout)
{
    setObjectName(QLatin1String(field.property) + QStringLiteral("Row"));
    m_texts->setSpacing(3);
    m_texts->addWidget(makeLabel(itemFieldLabel(field), "label", this));
    m_texts->addWidget(makeValue());
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(14, 9, 14, 9);
    row->setSpacing(4);
    row->addLayout(m_texts, 1);
    addButtons(*row);
}

QWidget *FieldRow::makeValue()
{
    if (m_field.isSecret()) {
        m_secret = makeLabel({}, "value", this);
        m_secret->setWordWrap(true);
        m_secret->setAccessibleName(tr("%1, hidden").arg(itemFieldLabel(m_field)));
        setRevealed(false);
        return m_secret;
    }
    const char *tone = m_field.form == ItemField::Link ? "link" : "value";
    auto *text = makeLabel(wrappable(m_value), tone, this);
    text->setWordWrap(true);
    text->setAccessibleName(m_value);
    return text;
}

void FieldRow::addButtons(QHBoxLayout &row)
{
    if (m_field.has(ItemField::NoCopy))
        return;
    const QString label = itemFieldLabel(m_field);
    const QString name = QLatin1String(m_field.property);
    if (m_secret) {
        m_reveal = makeIconButton(m_theme.icon(QStringLiteral("eye"), Palette::Muted),
                                  tr("View text under dots"), "plain", this);
        m_reveal->setObjectName(name + QStringLiteral("RevealButton"));
        m_reveal->setCheckable(true);
        connect(m_reveal, &QToolButton::toggled, this, &FieldRow::setRevealed);
        row.addWidget(m_reveal);
    }
    if (m_field.form == ItemField::Link) {
        auto *open = makeIconButton(m_theme.icon(QStringLiteral("external-link"), Palette::Muted),
                                    tr("Open in browser"), "plain", this);
        open->setObjectName(name + QStringLiteral("OpenButton"));
        connect(open, &QToolButton::clicked, this, [this] { Q_EMIT openRequested(m_value); });
        row.addWidget(open);
    }
    auto *copy = makeIconButton(m_theme.icon(QStringLiteral("copy"), Palette::Muted),
                                tr("Copy to clipboard"), "plain", this);
    copy->setAccessibleName(tr("Copy to clipboard: %1").arg(label));
    copy->setObjectName(name + QStringLiteral("CopyButton"));
    connect(copy, &QToolButton::clicked, this, [this] { Q_EMIT copyRequested(m_value); });
    row.addWidget(copy);
}

void FieldRow::setStrength(int level)
{
    auto *meter = new StrengthMeter(m_theme, this);
    meter->setLevel(level);
    m_texts->addWidget(meter, 0, Qt::AlignLeft);
}

void FieldRow::setRevealed(bool revealed)
{
    if (revealed) {
        // In letters of one width that do not look alike.
        const QFont fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);
        m_secret->setStyleSheet(QStringLiteral("font-family: '%1';").arg(fixed.family()));
        m_secret->setText(breakable(m_value));
    } else {
        m_secret->setStyleSheet(QStringLiteral("letter-spacing: 2px;"));
        m_secret->setText(QString(dotCount, QChar(0x2022)));
    }
    if (m_reveal)
        m_reveal->setIcon(m_theme.icon(revealed ? QStringLiteral("eye-off") : QStringLiteral("eye"),
                                       Palette::Muted));
}
