#include "DeleteSafeDialog.h"

#include "style/Style.h"
#include "style/Theme.h"
#include "widgets/Controls.h"
#include "widgets/MessageLabel.h"
#include "widgets/PasswordField.h"

#include <QDir>

namespace {

const int usualWidth = 420;

} // namespace

DeleteSafeDialog::DeleteSafeDialog(const SafeInfo &safe, const Check &check, const Theme &theme,
                                   QWidget *parent)
    : FramedDialog(tr("Delete safe"), theme, parent)
    , m_check(check)
    , m_password(new PasswordField(theme.icon(QStringLiteral("eye"), Palette::Muted),
                                   theme.icon(QStringLiteral("eye-off"), Palette::Muted), this))
    , m_message(new MessageLabel(this))
    , m_delete(makeButton(tr("Delete"), "primary", this))
{
    setObjectName(QStringLiteral("deleteSafeDialog"));
    FramedDialog::setFixedWidth(Style::scaled(usualWidth));
    auto *heading = makeLabel(tr("Delete “%1” for good?").arg(safe.name), "heading", this);
    heading->setWordWrap(true);
    const QString stays =
        safe.fact.mirrorFolder.isEmpty()
            ? tr("Everything in it will be gone from this computer. Its backups stay.")
            : tr("Everything in it will be gone from this computer. Its backups and its copy in "
                 "the cloud folder stay.");
    auto *text = makeLabel(stays, "text", this);
    text->setWordWrap(true);
    auto *place = makeLabel(QDir::toNativeSeparators(safe.folder), "muted", this);
    place->setWordWrap(true);
    m_password->setObjectName(QStringLiteral("deletePassword"));
    m_password->setPlaceholderText(tr("Master password of this safe"));
    m_password->setAccessibleName(tr("Master password of this safe"));
    m_message->setObjectName(QStringLiteral("deleteMessage"));
    m_delete->setObjectName(QStringLiteral("deleteButton"));
    m_delete->setEnabled(false);
    m_delete->setDefault(true);
    auto *cancel = makeButton(tr("Cancel"), "plain", this);
    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(Style::spacing);
    buttons->addStretch();
    buttons->addWidget(cancel);
    buttons->addWidget(m_delete);
    body().addWidget(heading);
    body().addWidget(text);
    body().addWidget(place);
    body().addSpacing(Style::spacing);
    body().addWidget(m_password);
    body().addWidget(m_message);
    body().addSpacing(Style::spacing);
    body().addLayout(buttons);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    connect(m_delete, &QPushButton::clicked, this, &DeleteSafeDialog::check);
    connect(m_password, &QLineEdit::textChanged, this, [this](const QString &entered) {
        m_delete->setEnabled(!entered.isEmpty() && !m_checking.isRunning());
    });
    connect(&m_checking, &QFutureWatcher<bool>::finished, this, &DeleteSafeDialog::onChecked);
    for (QLabel *label : {heading, text, place})
        keepTextHeight(*label, Style::scaled(usualWidth) - 2 * Style::margin);
    m_password->setFocus();
}

void DeleteSafeDialog::check()
{
    m_delete->setEnabled(false);
    m_message->setMessage({});
    m_checking.setFuture(m_check(m_password->text()));
    m_password->clearSecret();
}

void DeleteSafeDialog::onChecked()
{
    if (m_checking.result()) {
        accept();
        return;
    }
    m_message->setMessage(tr("Wrong Password! Try again"));
    m_password->setFocus();
}
