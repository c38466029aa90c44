#include "ChangePasswordDialog.h"

#include "Platform.h"
#include "style/Style.h"
#include "style/Theme.h"
#include "widgets/CapsIndicator.h"
#include "widgets/Controls.h"
#include "widgets/MessageLabel.h"
#include "widgets/PasswordField.h"

#include <QEvent>
#include <QGridLayout>

using namespace ChangePasswordRules;

namespace {

const int fieldWidth = 300;
const int messageHeight = 27;

} // namespace

ChangePasswordDialog::ChangePasswordDialog(const Parts &parts, const Theme &theme, QWidget *parent)
    : FramedDialog(tr("Change Password"), theme, parent)
    , m_parts(parts)
    , m_theme(theme)
    , m_caps(new CapsIndicator(this))
{
    setObjectName(QStringLiteral("changePasswordDialog"));
    setWindowModality(Qt::WindowModal);
    m_caps->setObjectName(QStringLiteral("changeCaps"));
    makeFields();
    auto *warning = makeLabel(tr("Only you know it. It cannot be recovered."), "muted", this);
    auto *cancel = makeButton(tr("Cancel"), "plain", this);
    cancel->setObjectName(QStringLiteral("changeCancel"));
    auto *change = makeButton(tr("Change password"), "primary", this);
    change->setObjectName(QStringLiteral("changeButton"));
    // Return goes from field to field and confirms behind the last one.
    change->setAutoDefault(false);
    cancel->setAutoDefault(false);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(change, &QPushButton::clicked, this, &ChangePasswordDialog::confirm);

    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(Style::spacing);
    buttons->addWidget(m_caps);
    buttons->addStretch();
    buttons->addWidget(cancel);
    buttons->addWidget(change);
    body().addWidget(warning);
    body().addSpacing(Style::spacing);
    body().addLayout(layOutFields());
    body().addSpacing(Style::spacing);
    body().addLayout(buttons);
    setTabOrder(m_fields.back(), change);
    setTabOrder(change, cancel);
    connect(&theme, &Theme::changed, this, &ChangePasswordDialog::showMessages);
    m_fields[Hint]->setText(parts.hint);
    m_caps->setOn(parts.platform.capsLockOn());
    m_old->setFocus();
}

void ChangePasswordDialog::makeFields()
{
    const QIcon show = m_theme.icon(QStringLiteral("eye"), Palette::Muted);
    const QIcon hide = m_theme.icon(QStringLiteral("eye-off"), Palette::Muted);
    m_old = new PasswordField(show, hide, this);
    m_new = new PasswordField(show, hide, this);
    m_confirm = new PasswordField(show, hide, this);
    m_fields = {m_old, m_new, m_confirm, new TextField(this)};
    const std::array<const char *, FieldCount> names = {"oldPassword", "newPassword",
                                                        "confirmPassword", "passwordHint"};
    for (int i = 0; i < FieldCount; ++i) {
        const auto at = static_cast<std::size_t>(i);
        const QString name = QLatin1String(names[at]);
        m_fields[at]->setObjectName(name);
        m_fields[at]->setMinimumWidth(Style::scaled(fieldWidth));
        m_fields[at]->installEventFilter(this);
        m_messages[at] = new MessageLabel(this);
        m_messages[at]->setObjectName(name + QStringLiteral("Message"));
        connect(m_fields[at], &QLineEdit::textEdited, this, [this, i] { onEdited(i); });
        connect(m_fields[at], &QLineEdit::returnPressed, this, [this, i] { onReturn(i); });
    }
}

QGridLayout *ChangePasswordDialog::layOutFields()
{
    const std::array<QString, FieldCount> captions = {tr("Old password:"), tr("New password:"),
                                                      tr("Confirm:"), tr("Hint:")};
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(Style::gap);
    grid->setVerticalSpacing(0);
    for (int i = 0; i < FieldCount; ++i) {
        const auto at = static_cast<std::size_t>(i);
        auto *caption = makeLabel(captions[at], "plain", this);
        caption->setBuddy(m_fields[at]);
        m_fields[at]->setAccessibleName(captions[at].chopped(1));
        // Its place stays when it is empty, so that nothing jumps while one types.
        m_messages[at]->setMinimumHeight(Style::scaled(messageHeight));
        m_messages[at]->setContentsMargins(2, 2, 0, 0);
        m_messages[at]->setAlignment(Qt::AlignTop | Qt::AlignLeft);
        grid->addWidget(caption, 2 * i, 0);
        grid->addWidget(m_fields[at], 2 * i, 1);
        grid->addWidget(m_messages[at], 2 * i + 1, 1);
        if (i > 0)
            setTabOrder(m_fields[at - 1], m_fields[at]);
    }
    return grid;
}

Input ChangePasswordDialog::input() const
{
    return {m_old->text(), m_new->text(), m_confirm->text(), m_fields[Hint]->text(), m_oldRefused};
}

void ChangePasswordDialog::onEdited(int field)
{
    if (field == Old)
        m_oldRefused = false;
    m_reached = qMax(m_reached, field);
    showMessages();
}

void ChangePasswordDialog::onReturn(int field)
{
    if (field < Hint)
        m_fields[static_cast<std::size_t>(field) + 1]->setFocus();
    else
        confirm();
}

void ChangePasswordDialog::confirm()
{
    m_oldRefused = !m_old->text().isEmpty() && !m_parts.isPassword(m_old->text());
    const Input entered = input();
    const Field wrong = firstFault(entered);
    if (wrong == FieldCount) {
        Q_EMIT confirmed(entered.newPassword, entered.hint);
        accept();
        return;
    }
    m_reached = FieldCount - 1;
    showMessages();
    m_fields[wrong]->setFocus();
    m_fields[wrong]->selectAll();
}

void ChangePasswordDialog::showMessages()
{
    const Input entered = input();
    for (int i = 0; i < FieldCount; ++i) {
        const Message shown = i <= m_reached ? message(entered, Field(i)) : Message();
        MessageLabel *label = m_messages[static_cast<std::size_t>(i)];
        label->setMessage(shown.text);
        const QString color = m_theme.palette().strength(shown.strength).name();
        label->setStyleSheet(shown.strength > 0 ? QStringLiteral("color: %1;").arg(color)
                                                : QString());
    }
}

void ChangePasswordDialog::done(int result)
{
    for (PasswordField *field : {m_old, m_new, m_confirm})
        field->clearSecret();
    FramedDialog::done(result);
}

bool ChangePasswordDialog::eventFilter(QObject *watched, QEvent *event)
{
    // The lamp changes with a key or while another window has the keyboard.
    const QEvent::Type type = event->type();
    if (type == QEvent::KeyPress || type == QEvent::KeyRelease || type == QEvent::FocusIn)
        m_caps->setOn(m_parts.platform.capsLockOn());
    return FramedDialog::eventFilter(watched, event);
}
