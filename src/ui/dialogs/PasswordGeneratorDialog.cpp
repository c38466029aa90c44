#include "PasswordGeneratorDialog.h"

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

#include <QDebug>
#include <QEvent>
#include <QLineEdit>
#include <QLocale>

namespace {

const int smallestLength = 4;
const int greatestLength = 16;
const int fewestSpecials = 1;
const int usualWidth = 376;

} // namespace

PasswordGeneratorDialog::PasswordGeneratorDialog(const Parts &parts, const Theme &theme,
                                                 QWidget *parent)
    : FramedDialog(tr("Password Generator"), theme, parent)
    , m_parts(parts)
    , m_theme(theme)
    , m_meter(new StrengthMeter(theme, this))
    , m_recent(new QWidget(this))
{
    setObjectName(QStringLiteral("PasswordGenerator"));
    setAttribute(Qt::WA_DeleteOnClose);
    setMinimumWidth(Style::scaled(usualWidth));
    auto *entries = new QVBoxLayout(m_recent);
    entries->setContentsMargins({});
    entries->setSpacing(0);
    m_recent->setObjectName(QStringLiteral("recentPasswords"));
    m_recent->hide();
    body().addWidget(makeField(theme));
    body().addWidget(m_meter, 0, Qt::AlignLeft);
    body().addSpacing(4);
    body().addLayout(makeNumbers(theme));
    body().addSpacing(4);
    body().addWidget(m_recent);
    body().addStretch();
    body().addLayout(makeButtons(theme));

    const UiSettings::PasswordShape shape = m_parts.uiSettings.passwordShape(objectName());
    m_length->setRange(smallestLength, greatestLength);
    m_length->setValue(shape.length);
    m_specials->setRange(fewestSpecials, m_length->value());
    m_specials->setValue(shape.specialCount);
    connect(m_length, QOverload<int>::of(&QSpinBox::valueChanged), this, [this](int length) {
        const QSignalBlocker once(m_specials);
        m_specials->setMaximum(length);
        generate();
    });
    connect(m_specials, QOverload<int>::of(&QSpinBox::valueChanged), this,
            &PasswordGeneratorDialog::generate);
    connect(&m_parts.recent, &RecentPasswords::changed, this, &PasswordGeneratorDialog::showRecent);
    setTarget({});
    generate();
    showRecent();
    m_length->setFocus();
    qDebug().noquote() << "UI: PasswordGenerator: instance created";
}

PasswordGeneratorDialog::~PasswordGeneratorDialog()
{
    m_parts.uiSettings.setPasswordShape(objectName(), {m_length->value(), m_specials->value()});
    qDebug().noquote() << "UI: PasswordGenerator: instance destroyed";
}

QWidget *PasswordGeneratorDialog::makeField(const Theme &theme)
{
    QFrame *frame = makeCard(this);
    m_password = new QLineEdit(frame);
    m_password->setObjectName(QStringLiteral("generatedPassword"));
    m_password->setAccessibleName(tr("Generated password"));
    m_password->setReadOnly(true);
    auto *again = makeIconButton(theme.icon(QStringLiteral("refresh"), Palette::Muted),
                                 tr("Another password"), "tool", frame);
    again->setObjectName(QStringLiteral("regenerateButton"));
    connect(again, &QToolButton::clicked, this, &PasswordGeneratorDialog::generate);
    auto *row = new QHBoxLayout(frame);
    row->setContentsMargins(2, 5, 5, 5);
    row->setSpacing(0);
    row->addWidget(m_password, 1);
    row->addWidget(again);
    return frame;
}

QBoxLayout *PasswordGeneratorDialog::makeNumbers(const Theme &theme)
{
    auto *row = new QHBoxLayout;
    row->setSpacing(Style::spacing);
    m_length = makeNumber(theme, "length", tr("Length:"), *row);
    row->addStretch();
    m_specials = makeNumber(theme, "specialCount", tr("Special chars:"), *row);
    return row;
}

NumberBox *PasswordGeneratorDialog::makeNumber(const Theme &theme, const char *name,
                                               const QString &label, QBoxLayout &row)
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

QBoxLayout *PasswordGeneratorDialog::makeButtons(const Theme &theme)
{
    m_recentButton = makeButton(tr("Recent"), "link", this);
    m_recentButton->setObjectName(QStringLiteral("recentButton"));
    m_recentButton->setCheckable(true);
    m_recentButton->setIcon(theme.icon(QStringLiteral("history"), Palette::Accent));
    connect(m_recentButton, &QPushButton::toggled, this, &PasswordGeneratorDialog::showRecent);
    QPushButton *cancel = makeButton(tr("Cancel"), "plain", this);
    cancel->setObjectName(QStringLiteral("cancelButton"));
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    QPushButton *copyButton = makeButton(tr("Copy"), "plain", this);
    copyButton->setObjectName(QStringLiteral("copyButton"));
    copyButton->setIcon(theme.icon(QStringLiteral("copy"), Palette::Text));
    connect(copyButton, &QPushButton::clicked, this, [this] { copy(m_password->text()); });
    m_place = makeButton(tr("Place"), "primary", this);
    m_place->setObjectName(QStringLiteral("placeButton"));
    m_place->setDefault(true);
    connect(m_place, &QPushButton::clicked, this, &PasswordGeneratorDialog::place);

    auto *row = new QHBoxLayout;
    row->setSpacing(Style::spacing);
    row->addWidget(m_recentButton);
    row->addStretch();
    row->addWidget(cancel);
    row->addWidget(copyButton);
    row->addWidget(m_place);
    return row;
}

void PasswordGeneratorDialog::setTarget(const PasswordTarget &target)
{
    m_target = target;
    updatePlace();
}

void PasswordGeneratorDialog::updatePlace()
{
    const QString obstacle =
        m_target.obstacle ? m_target.obstacle() : tr("There is nothing to place it in.");
    m_place->setEnabled(obstacle.isEmpty());
    m_place->setToolTip(obstacle);
    m_place->setAccessibleDescription(obstacle);
}

bool PasswordGeneratorDialog::event(QEvent *event)
{
    // A browser may have come or gone meanwhile.
    if (event->type() == QEvent::WindowActivate)
        updatePlace();
    return FramedDialog::event(event);
}

void PasswordGeneratorDialog::generate()
{
    const QString password =
        generatePassword(m_length->value(), m_specials->value(), m_parts.random);
    m_password->setText(password);
    m_meter->setLevel(password.isEmpty() ? 0 : passwordStrengthLevel(password));
    m_parts.recent.add(password);
    updatePlace();
}

void PasswordGeneratorDialog::copy(const QString &password)
{
    if (password.isEmpty())
        return;
    m_parts.clipboard.copy(password, m_parts.settings.clearClipboard());
    m_parts.recent.markUsed(password);
}

void PasswordGeneratorDialog::place()
{
    updatePlace();
    const QString password = m_password->text();
    if (!m_place->isEnabled() || password.isEmpty())
        return;
    m_parts.recent.markUsed(password);
    m_target.place(password);
    accept();
}

void PasswordGeneratorDialog::showRecent()
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
    adjustSize();
}

QWidget *PasswordGeneratorDialog::makeRecentRow(int index)
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
