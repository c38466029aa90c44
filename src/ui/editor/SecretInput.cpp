#include "SecretInput.h"

#include "PasswordStrength.h"
#include "style/Theme.h"
#include "widgets/PasswordField.h"
#include "widgets/StrengthMeter.h"

#include <QAction>
#include <QKeyEvent>
#include <QSignalBlocker>

SecretInput::SecretInput(const ItemField &field, const InputContext &context, QWidget *parent)
    : FieldInput(field, parent)
    , m_line(new PasswordField(context.theme.icon(QStringLiteral("eye"), Palette::Muted),
                               context.theme.icon(QStringLiteral("eye-off"), Palette::Muted), this))
{
    place(m_line, 1, itemFieldLabel(field),
          QLatin1String(field.property) + QStringLiteral("Field"));
    m_line->installEventFilter(this);
    if (field.form == ItemField::Password) {
        addGenerator(context.theme);
        m_meter = new StrengthMeter(context.theme, this);
        placeBelow(m_meter);
    }
    addCopy(context.theme);
    connect(m_line, &QLineEdit::textChanged, this, [this] {
        showStrength();
        Q_EMIT edited();
    });
}

void SecretInput::addGenerator(const Theme &theme)
{
    QAction *make = m_line->addAction(theme.icon(QStringLiteral("wand"), Palette::Muted),
                                      QLineEdit::TrailingPosition);
    make->setObjectName(QStringLiteral("generateAction"));
    make->setText(tr("Generate password"));
    make->setToolTip(tr("Generate password (Ctrl+G)"));
    make->setShortcut(QKeySequence(QStringLiteral("Ctrl+G")));
    make->setShortcutContext(Qt::WidgetShortcut);
    connect(make, &QAction::triggered, this, &FieldInput::generatorRequested);
}

void SecretInput::addCopy(const Theme &theme)
{
    QAction *button = m_line->addAction(theme.icon(QStringLiteral("copy"), Palette::Muted),
                                        QLineEdit::TrailingPosition);
    button->setObjectName(QStringLiteral("copyAction"));
    button->setText(tr("Copy to clipboard"));
    button->setToolTip(tr("Copy to clipboard (Ctrl+C)"));
    connect(button, &QAction::triggered, this, &SecretInput::copy);
}

void SecretInput::copy()
{
    if (!m_line->text().isEmpty())
        Q_EMIT copyRequested(m_line->text());
}

bool SecretInput::eventFilter(QObject *watched, QEvent *event)
{
    // Dots cannot be copied in part; the key takes the whole, through the clipboard that is
    // cleared.
    if (watched == m_line && event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent *>(event)->matches(QKeySequence::Copy) &&
        m_line->echoMode() == QLineEdit::Password) {
        copy();
        return true;
    }
    return FieldInput::eventFilter(watched, event);
}

void SecretInput::showStrength()
{
    if (m_meter)
        m_meter->setLevel(m_line->text().isEmpty() ? 0 : passwordStrengthLevel(m_line->text()));
}

QVariant SecretInput::value() const
{
    return m_line->text();
}

void SecretInput::setValue(const QVariant &value)
{
    const QSignalBlocker blocker(m_line);
    m_line->setText(value.toString());
    showStrength();
}

QWidget *SecretInput::control() const
{
    return m_line;
}
