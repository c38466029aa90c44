#include "CloudSafeRow.h"

#include "CloudTexts.h"
#include "style/Style.h"
#include "style/Theme.h"
#include "widgets/Controls.h"
#include "widgets/MessageLabel.h"
#include "widgets/Toggle.h"

namespace {

const int iconSize = 24;

} // namespace

CloudSafeRow::CloudSafeRow(const QString &name, const Theme &theme, QWidget *parent)
    : QWidget(parent)
    , m_theme(theme)
    , m_icon(new QLabel(this))
    , m_name(makeLabel(name, "heading", this))
    , m_line(new MessageLabel(this))
    , m_advice(makeLabel({}, "muted", this))
    , m_now(makeButton(tr("Synchronise now"), "plain", this))
    , m_password(makeButton(tr("Enter the new password…"), "plain", this))
    , m_toggle(new Toggle(theme, this))
{
    m_line->setObjectName(QStringLiteral("cloudLine"));
    m_advice->setObjectName(QStringLiteral("cloudAdvice"));
    m_now->setObjectName(QStringLiteral("synchroniseNowButton"));
    m_password->setObjectName(QStringLiteral("enterPasswordButton"));
    m_toggle->setObjectName(QStringLiteral("cloudToggle"));
    m_toggle->setAccessibleName(tr("Synchronise “%1”").arg(name));
    for (QLabel *label : {m_name, static_cast<QLabel *>(m_line), m_advice}) {
        // Names of safes and items are not ours.
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
    }
    layOut();
    connect(m_toggle, &QAbstractButton::clicked, this, [this](bool on) {
        // It is on when the folder is there, and off when the question is answered.
        m_toggle->setChecked(!on);
        Q_EMIT switched(on);
    });
    connect(m_now, &QPushButton::clicked, this, &CloudSafeRow::synchronizeRequested);
    connect(m_password, &QPushButton::clicked, this, &CloudSafeRow::passwordRequested);
}

void CloudSafeRow::layOut()
{
    auto *buttons = new QHBoxLayout;
    buttons->setContentsMargins(0, 4, 0, 0);
    buttons->setSpacing(Style::spacing);
    buttons->addWidget(m_password);
    buttons->addWidget(m_now);
    buttons->addStretch();
    auto *texts = new QVBoxLayout;
    texts->setSpacing(2);
    texts->addWidget(m_name);
    texts->addWidget(m_line);
    texts->addWidget(m_advice);
    texts->addLayout(buttons);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, Style::spacing, 0, Style::spacing);
    row->setSpacing(Style::gap);
    row->addWidget(m_icon, 0, Qt::AlignTop);
    row->addLayout(texts, 1);
    row->addWidget(m_toggle, 0, Qt::AlignTop);
}

void CloudSafeRow::setStatus(const CloudStatus &status, bool isOpen, const QDateTime &now)
{
    const bool needsPassword = status.state == CloudStatus::State::NewPasswordNeeded;
    const Palette::Role colour = status.needsAttention() ? Palette::Weak
                                 : status.isOn()         ? Palette::Accent
                                                         : Palette::Muted;
    const int size = Style::scaled(iconSize);
    m_icon->setPixmap(m_theme.icon(CloudTexts::icon(status), colour)
                          .pixmap(window()->windowHandle(), QSize(size, size)));
    const QString line =
        status.isOn() ? CloudTexts::line(status, now) : tr("Only on this computer");
    if (line != m_line->text())
        m_line->setMessage(line);
    setStyleProperty(*m_line, "tone",
                     status.needsAttention() ? QStringLiteral("error") : QStringLiteral("muted"));
    m_advice->setText(CloudTexts::advice(status));
    m_advice->setVisible(!m_advice->text().isEmpty());
    m_password->setVisible(needsPassword);
    m_now->setVisible(status.isOn() && isOpen && !needsPassword);
    m_now->setEnabled(status.state != CloudStatus::State::Running);
    m_toggle->setChecked(status.isOn());
}
