#include "CloudPasswordDialog.h"

#include "CloudTexts.h"
#include "style/Style.h"
#include "style/Theme.h"
#include "widgets/Controls.h"
#include "widgets/MessageLabel.h"
#include "widgets/PasswordField.h"

#include <QProgressBar>

namespace {

const int usualWidth = 412;

} // namespace

CloudPasswordDialog::CloudPasswordDialog(CloudSync &sync, const QString &safeName,
                                         const Theme &theme, QWidget *parent)
    : FramedDialog(tr("New master password"), theme, parent)
    , m_sync(sync)
    , m_password(new PasswordField(theme.icon(QStringLiteral("eye"), Palette::Muted),
                                   theme.icon(QStringLiteral("eye-off"), Palette::Muted), this))
    , m_message(new MessageLabel(this))
    , m_bar(new QProgressBar(this))
    , m_notNow(makeButton(tr("Not now"), "plain", this))
    , m_take(makeButton(tr("Go on with it"), "primary", this))
{
    setObjectName(QStringLiteral("cloudPasswordDialog"));
    FramedDialog::setFixedWidth(Style::scaled(usualWidth));
    m_password->setObjectName(QStringLiteral("cloudPasswordField"));
    m_message->setObjectName(QStringLiteral("cloudPasswordMessage"));
    m_notNow->setObjectName(QStringLiteral("notNowButton"));
    m_take->setObjectName(QStringLiteral("takeButton"));
    m_bar->setTextVisible(false);
    m_bar->setAccessibleName(tr("Progress"));
    m_take->setDefault(true);
    layOut(safeName);
    connect(m_take, &QPushButton::clicked, this, &CloudPasswordDialog::take);
    connect(m_notNow, &QPushButton::clicked, this, &QDialog::reject);
    connect(m_password, &QLineEdit::textChanged, this, [this] { setBusy(m_busy); });
    connect(&m_sync, &CloudSync::passwordTaken, this, &CloudPasswordDialog::onTaken);
    connect(&m_sync, &CloudSync::passwordProgress, this, [this](int done, int total) {
        m_bar->setRange(0, total);
        m_bar->setValue(done);
    });
    setBusy(false);
    m_password->setFocus();
}

CloudPasswordDialog::~CloudPasswordDialog()
{
    m_password->clearSecret();
}

void CloudPasswordDialog::layOut(const QString &safeName)
{
    auto *text =
        makeLabel(tr("The password of “%1” was changed on another computer. Enter the new one to "
                     "go on synchronising; from then on the safe opens with it here, too.")
                      .arg(safeName),
                  "plain", this);
    text->setTextFormat(Qt::PlainText);
    text->setWordWrap(true);
    text->ensurePolished();
    text->setMinimumHeight(text->heightForWidth(Style::scaled(usualWidth) - 2 * Style::margin));
    auto *caption = makeLabel(tr("New master password"), "muted", this);
    caption->setBuddy(m_password);
    m_password->setAccessibleName(caption->text());
    m_message->setWordWrap(true);
    setStyleProperty(*m_message, "tone", QStringLiteral("error"));
    m_message->hide();
    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(Style::spacing);
    buttons->addStretch();
    buttons->addWidget(m_notNow);
    buttons->addWidget(m_take);
    body().addWidget(text);
    body().addSpacing(Style::spacing);
    body().addWidget(caption);
    body().addWidget(m_password);
    body().addWidget(m_message);
    body().addWidget(m_bar);
    body().addStretch();
    body().addSpacing(Style::spacing);
    body().addLayout(buttons);
}

void CloudPasswordDialog::take()
{
    m_message->hide();
    m_bar->setRange(0, 0);
    setBusy(true);
    m_sync.takePassword(m_password->text());
}

void CloudPasswordDialog::onTaken(CloudSync::Taking result)
{
    setBusy(false);
    const QString fault = CloudTexts::fault(result);
    if (fault.isEmpty()) {
        accept();
        return;
    }
    m_message->show();
    m_message->setMessage(fault);
    m_password->selectAll();
    m_password->setFocus();
}

void CloudPasswordDialog::setBusy(bool busy)
{
    m_busy = busy;
    m_bar->setVisible(busy);
    m_password->setEnabled(!busy);
    m_notNow->setEnabled(!busy);
    m_take->setEnabled(!busy && !m_password->text().isEmpty());
}

void CloudPasswordDialog::reject()
{
    if (!m_busy)
        QDialog::reject();
}
