#include "GeneratorPanel.h"

#include "ClipboardKeeper.h"
#include "GPMAppSettings.h"
#include "PasswordStrength.h"
#include "RecentPasswords.h"
#include "UiSettings.h"
#include "style/Style.h"
#include "style/Theme.h"
#include "widgets/Controls.h"
#include "widgets/NumberBox.h"
#include "widgets/StrengthMeter.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QLocale>

#include <utility>

namespace {

const int smallestLength = 4;
const int greatestLength = 16;
const int fewestSpecials = 1;
const char *const shapeName = "PasswordGenerator"; ///< in the settings

} // namespace

GeneratorPanel::GeneratorPanel(const Parts &parts, Extent extent, const Theme &theme,
                               QWidget *parent)
    : QWidget(parent)
    , m_parts(parts)
    , m_theme(theme)
    , m_meter(new StrengthMeter(theme, this))
    , m_recent(new QWidget(this))
{
    auto *entries = new QVBoxLayout(m_recent);
    entries->setContentsMargins({});
    entries->setSpacing(0);
    m_recent->setObjectName(QStringLiteral("recentPasswords"));
    m_recent->hide();
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(Style::spacing);
    column->addWidget(makeField(theme));
    column->addWidget(m_meter, 0, Qt::AlignLeft);
    column->addSpacing(4);
    column->addLayout(makeNumbers(theme));
    column->addSpacing(4);
    column->addWidget(m_recent);
    column->addStretch();
    column->addLayout(makeButtons(extent, theme));
    connectNumbers();
    setTarget({});
    showRecent();
}

GeneratorPanel::~GeneratorPanel()
{
    finish();
}

void GeneratorPanel::connectNumbers()
{
    m_length->setRange(smallestLength, greatestLength);
    m_specials->setRange(fewestSpecials, greatestLength);
    connect(m_length, QOverload<int>::of(&QSpinBox::valueChanged), this, [this](int length) {
        const QSignalBlocker once(m_specials);
        m_specials->setMaximum(length);
        followNumbers();
    });
    connect(m_specials, QOverload<int>::of(&QSpinBox::valueChanged), this,
            &GeneratorPanel::followNumbers);
    connect(&m_parts.recent, &RecentPasswords::changed, this, &GeneratorPanel::showRecent);
}

void GeneratorPanel::takeFocus()
{
    m_length->setFocus();
}

void GeneratorPanel::start()
{
    const UiSettings::PasswordShape shape =
        m_parts.uiSettings.passwordShape(QLatin1String(shapeName));
    const QSignalBlocker noLength(m_length);
    const QSignalBlocker noSpecials(m_specials);
    m_length->setValue(shape.length);
    m_specials->setMaximum(m_length->value());
    m_specials->setValue(shape.specialCount);
    m_started = true;
    generate();
}

void GeneratorPanel::finish()
{
    if (!std::exchange(m_started, false))
        return;
    m_parts.uiSettings.setPasswordShape(QLatin1String(shapeName),
                                        {m_length->value(), m_specials->value()});
    m_password->clear();
}

QWidget *GeneratorPanel::makeField(const Theme &theme)
{
    QFrame *frame = makeCard(this);
    m_password = new QLineEdit(frame);
    m_password->setObjectName(QStringLiteral("generatedPassword"));
    m_password->setAccessibleName(tr("Generated password"));
    m_password->setReadOnly(true);
    auto *again = makeIconButton(theme.icon(QStringLiteral("refresh"), Palette::Muted),
                                 tr("Another password"), "tool", frame);
    again->setObjectName(QStringLiteral("regenerateButton"));
    connect(again, &QToolButton::clicked, this, &GeneratorPanel::generate);
    auto *row = new QHBoxLayout(frame);
    row->setContentsMargins(2, 5, 5, 5);
    row->setSpacing(0);
    row->addWidget(m_password, 1);
    row->addWidget(again);
    return frame;
}

QBoxLayout *GeneratorPanel::makeNumbers(const Theme &theme)
{
    auto *row = new QHBoxLayout;
    row->setSpacing(Style::spacing);
    m_length = makeNumber(theme, "length", tr("Length:"), *row);
    row->addStretch();
    m_specials = makeNumber(theme, "specialCount", tr("Special chars:"), *row);
    return row;
}

NumberBox *GeneratorPanel::makeNumber(const Theme &theme, const char *name, const QString &label,
                                      QBoxLayout &row)
{
    auto *box = new NumberBox(theme.icon(QStringLiteral("chevron-up"), Palette::Muted),
                              theme.icon(QStringLiteral("chevron-down"), Palette::Muted), this);
    box->setObjectName(QLatin1String(name));
    box->setAccessibleName(label);
    QLabel *caption = makeLabel(label, "plain", this);
    caption->setBuddy(box);
    row.addWidget(caption);
    row.addWidget(box);
    return box;
}

QBoxLayout *GeneratorPanel::makeButtons(Extent extent, const Theme &theme)
{
    m_recentButton = makeButton(tr("Recent"), "link", this);
    m_recentButton->setObjectName(QStringLiteral("recentButton"));
    m_recentButton->setCheckable(true);
    m_recentButton->setIcon(theme.icon(QStringLiteral("history"), Palette::Accent));
    connect(m_recentButton, &QPushButton::toggled, this, &GeneratorPanel::showRecent);
    m_recentButton->setVisible(extent == Whole);
    QPushButton *cancel = makeButton(tr("Cancel"), "plain", this);
    cancel->setObjectName(QStringLiteral("cancelButton"));
    cancel->setVisible(extent == Whole);
    connect(cancel, &QPushButton::clicked, this, &GeneratorPanel::cancelled);
    QPushButton *copyButton = makeButton(tr("Copy"), "plain", this);
    copyButton->setObjectName(QStringLiteral("copyButton"));
    copyButton->setIcon(theme.icon(QStringLiteral("copy"), Palette::Text));
    connect(copyButton, &QPushButton::clicked, this, [this] { copy(m_password->text()); });
    m_place = makeButton(tr("Place"), "primary", this);
    m_place->setObjectName(QStringLiteral("placeButton"));
    m_place->setDefault(true);
    connect(m_place, &QPushButton::clicked, this, &GeneratorPanel::place);

    auto *row = new QHBoxLayout;
    row->setSpacing(Style::spacing);
    row->addWidget(m_recentButton);
    row->addStretch();
    row->addWidget(cancel);
    row->addWidget(copyButton);
    row->addWidget(m_place);
    return row;
}

void GeneratorPanel::setTarget(const PasswordTarget &target)
{
    m_target = target;
    updatePlace();
}

void GeneratorPanel::updatePlace()
{
    const QString obstacle =
        m_target.obstacle ? m_target.obstacle() : tr("There is nothing to place it in.");
    m_place->setEnabled(obstacle.isEmpty());
    m_place->setToolTip(obstacle);
    m_place->setAccessibleDescription(obstacle);
}

void GeneratorPanel::followNumbers()
{
    // Enter makes a number tell its value again: what is placed is what was seen.
    if (m_password->text().size() != m_length->value() || m_madeSpecials != m_specials->value())
        generate();
}

void GeneratorPanel::generate()
{
    m_madeSpecials = m_specials->value();
    const QString password =
        generatePassword(m_length->value(), m_specials->value(), m_parts.random);
    m_password->setText(password);
    m_meter->setLevel(password.isEmpty() ? 0 : passwordStrengthLevel(password));
    m_parts.recent.add(password);
    updatePlace();
}

void GeneratorPanel::copy(const QString &password)
{
    if (password.isEmpty())
        return;
    m_parts.clipboard.copy(password, m_parts.settings.clearClipboard());
    m_parts.recent.markUsed(password);
    Q_EMIT copied();
}

void GeneratorPanel::place()
{
    updatePlace();
    const QString password = m_password->text();
    if (!m_place->isEnabled() || password.isEmpty())
        return;
    m_parts.recent.markUsed(password);
    m_target.place(password);
    Q_EMIT placed();
}

void GeneratorPanel::keyPressEvent(QKeyEvent *event)
{
    // Outside of a dialog nothing else presses the default button.
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        place();
    else
        QWidget::keyPressEvent(event);
}

void GeneratorPanel::showRecent()
{
    m_recentButton->setEnabled(m_parts.recent.isKeeping());
    m_recentButton->setToolTip(
        m_parts.recent.isKeeping()
            ? tr("The passwords made since the safe was opened; locking it wipes them")
            : tr("Passwords are remembered only while a safe is open"));
    if (!m_parts.recent.isKeeping())
        m_recentButton->setChecked(false);
    while (QLayoutItem *item = m_recent->layout()->takeAt(0)) {
        // Later: the button that was pressed may be among them.
        item->widget()->hide();
        item->widget()->deleteLater();
        delete item;
    }
    const bool shown = m_recentButton->isChecked();
    const auto count = shown ? static_cast<int>(m_parts.recent.entries().size()) : 0;
    for (int index = 0; index < count; ++index)
        m_recent->layout()->addWidget(makeRecentRow(index));
    m_recent->setVisible(shown);
    Q_EMIT grown();
}

QWidget *GeneratorPanel::makeRecentRow(int index)
{
    const RecentPasswords::Entry &entry =
        m_parts.recent.entries().at(static_cast<std::size_t>(index));
    const QString time = QLocale().toString(entry.time.toLocalTime().time(), QLocale::ShortFormat);
    auto *line = new QWidget(m_recent);
    auto *row = new QHBoxLayout(line);
    row->setContentsMargins({});
    row->setSpacing(Style::gap);
    row->addWidget(makeLabel(time, "muted", line));
    QLabel *dots = makeLabel(QString(10, QChar(0x2022)), "value", line);
    dots->setAccessibleName(tr("Hidden password"));
    row->addWidget(dots);
    if (entry.used)
        row->addWidget(makeLabel(tr("used"), "muted", line));
    row->addStretch();
    auto *button = makeIconButton(m_theme.icon(QStringLiteral("copy"), Palette::Muted),
                                  tr("Copy the password of %1").arg(time), "tool", line);
    connect(button, &QToolButton::clicked, this,
            [this, index] { copy(m_parts.recent.password(index)); });
    row->addWidget(button);
    return line;
}
