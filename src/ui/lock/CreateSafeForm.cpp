#include "CreateSafeForm.h"

#include "FileNames.h"
#include "GPMAppCore.h"
#include "style/Style.h"
#include "style/Theme.h"
#include "widgets/MessageLabel.h"
#include "widgets/PasswordField.h"
#include "widgets/TextField.h"

#include <QBoxLayout>
#include <QDir>

CreateSafeForm::CreateSafeForm(GPMAppCore &core, const Theme &theme, Ground ground, QWidget *parent)
    : QWidget(parent)
    , m_core(core)
    , m_theme(theme)
    , m_ground(ground)
{
    makeFields(ground);
    layOut();
    for (int i = 0; i < CreateSafeRules::FieldCount; ++i) {
        QLineEdit *field = m_fields[static_cast<std::size_t>(i)];
        connect(field, &QLineEdit::textEdited, this, [this, i] { onEdited(i); });
        connect(field, &QLineEdit::returnPressed, this, [this, i] { onReturn(i); });
    }
    connect(&theme, &Theme::changed, this, &CreateSafeForm::showMessages);
    showMessages();
}

void CreateSafeForm::makeFields(Ground ground)
{
    const auto icon = [&](const char *name) {
        const QString file = QLatin1String(name);
        return ground == Dark ? m_theme.lockIcon(file, Palette::SidebarText)
                              : m_theme.icon(file, Palette::Muted);
    };
    m_password = new PasswordField(icon("eye"), icon("eye-off"), this);
    m_confirm = new PasswordField(icon("eye"), icon("eye-off"), this);
    m_fields = {new TextField(this), m_password, m_confirm, new TextField(this)};

    struct Texts
    {
        const char *objectName;
        QString placeholder;
    };
    const std::array<Texts, CreateSafeRules::FieldCount> texts = {{
        {"newSafeName", tr("New Safe name")},
        {"newSafePassword", tr("Password")},
        {"newSafeConfirm", tr("Confirm")},
        {"newSafeHint", tr("Hint")},
    }};
    for (std::size_t i = 0; i < m_fields.size(); ++i) {
        const QString name = QLatin1String(texts[i].objectName);
        m_fields[i]->setObjectName(name);
        m_fields[i]->setPlaceholderText(texts[i].placeholder);
        m_fields[i]->setAccessibleName(texts[i].placeholder);
        m_messages[i] = new MessageLabel(this);
        m_messages[i]->setWordWrap(false);
        m_messages[i]->setObjectName(name + QStringLiteral("Message"));
    }
    m_failure = new MessageLabel(this);
    m_failure->setObjectName(QStringLiteral("createFailure"));
}

void CreateSafeForm::layOut()
{
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(0);
    for (std::size_t i = 0; i < m_fields.size(); ++i) {
        column->addWidget(m_fields[i]);
        // Its place stays when it is empty, so that nothing jumps while one types.
        m_messages[i]->setFixedHeight(Style::scaled(27));
        m_messages[i]->setContentsMargins(2, 2, 0, 0);
        m_messages[i]->setAlignment(Qt::AlignTop);
        column->addWidget(m_messages[i]);
    }
    column->addWidget(m_failure);
    for (std::size_t i = 1; i < m_fields.size(); ++i)
        setTabOrder(m_fields[i - 1], m_fields[i]);
}

void CreateSafeForm::reset()
{
    for (QLineEdit *field : m_fields)
        field->setText(QString());
    clearSecrets();
    m_failure->setMessage({});
    m_chosenFolder.clear();
    m_reached = -1;
    showMessages();
}

void CreateSafeForm::takeFocus()
{
    m_fields[CreateSafeRules::Name]->setFocus();
}

void CreateSafeForm::clearSecrets()
{
    m_password->clearSecret();
    m_confirm->clearSecret();
}

QWidget *CreateSafeForm::lastField() const
{
    return m_fields.back();
}

CreateSafeRules::Input CreateSafeForm::input() const
{
    return {m_fields[CreateSafeRules::Name]->text(), m_password->text(), m_confirm->text(),
            m_fields[CreateSafeRules::Hint]->text()};
}

void CreateSafeForm::setFolder(const QString &chosen)
{
    m_chosenFolder = chosen;
    m_failure->setMessage({});
    Q_EMIT changed();
}

QString CreateSafeForm::folder() const
{
    if (m_chosenFolder.isEmpty() || KnownSafes::isFree(m_chosenFolder))
        return m_chosenFolder;
    const QString name = cleanFileName(m_fields[CreateSafeRules::Name]->text().trimmed());
    return m_chosenFolder + QLatin1Char('/') + name;
}

bool CreateSafeForm::canCreate() const
{
    return CreateSafeRules::canCreate(input());
}

void CreateSafeForm::onEdited(int field)
{
    m_reached = qMax(m_reached, field);
    m_failure->setMessage({});
    showMessages();
}

void CreateSafeForm::onReturn(int field)
{
    if (canCreate())
        Q_EMIT submitted();
    else if (field < CreateSafeRules::Hint)
        m_fields[static_cast<std::size_t>(field) + 1]->setFocus();
}

bool CreateSafeForm::create()
{
    const CreateSafeRules::Input entered = input();
    if (!CreateSafeRules::canCreate(entered))
        return false;
    const QString place = folder();
    if (!place.isEmpty() && !KnownSafes::isFree(place)) {
        m_failure->setMessage(tr("Create safe failed!") + QLatin1Char('\n') +
                              tr("A safe needs an empty folder that you may write to. This one is "
                                 "not:\n%1")
                                  .arg(QDir::toNativeSeparators(place)));
        return false;
    }
    if (!m_core.createSafe(entered.name, entered.password, entered.hint, place)) {
        m_failure->setMessage(tr("Create safe failed!"));
        return false;
    }
    reset();
    return true;
}

const Palette &CreateSafeForm::colors() const
{
    return m_ground == Dark ? m_theme.lockPalette() : m_theme.palette();
}

void CreateSafeForm::showMessages()
{
    const CreateSafeRules::Input entered = input();
    for (int i = 0; i < CreateSafeRules::FieldCount; ++i) {
        // The field after the last edited one says what it waits for; further ones stay quiet.
        const bool reached = m_reached >= 0 && i <= m_reached + 1;
        const auto message = reached ? CreateSafeRules::message(entered, CreateSafeRules::Field(i))
                                     : CreateSafeRules::Message();
        MessageLabel *label = m_messages[static_cast<std::size_t>(i)];
        label->setMessage(message.text);
        const QString color = colors().strength(message.strength).name();
        label->setStyleSheet(message.strength > 0 ? QStringLiteral("color: %1;").arg(color)
                                                  : QString());
    }
    Q_EMIT changed();
}
