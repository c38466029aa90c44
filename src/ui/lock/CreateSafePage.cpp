#include "CreateSafePage.h"

#include "GPMAppCore.h"
#include "style/Style.h"
#include "style/Theme.h"
#include "widgets/Controls.h"
#include "widgets/MessageLabel.h"
#include "widgets/PasswordField.h"
#include "widgets/TextField.h"

#include <QBoxLayout>
#include <QKeyEvent>
#include <QScrollArea>

namespace {

const int columnWidth = 316;

} // namespace

CreateSafePage::CreateSafePage(GPMAppCore &core, const Theme &theme, QWidget *parent)
    : QWidget(parent)
    , m_core(core)
    , m_theme(theme)
{
    setObjectName(QStringLiteral("createSafePage"));
    makeFields(theme);
    layOut();
    connectFields();
    showMessages();
}

void CreateSafePage::makeFields(const Theme &theme)
{
    const auto secret = [&] {
        return new PasswordField(theme.lockIcon(QStringLiteral("eye"), Palette::SidebarText),
                                 theme.lockIcon(QStringLiteral("eye-off"), Palette::SidebarText),
                                 this);
    };
    m_password = secret();
    m_confirm = secret();
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

    m_offer = makeLabel({}, "muted", this);
    m_offer->setObjectName(QStringLiteral("createOffer"));
    m_failure = new MessageLabel(this);
    m_failure->setObjectName(QStringLiteral("createFailure"));
    m_back = makeButton(tr("Back"), "plain", this);
    m_back->setObjectName(QStringLiteral("backButton"));
    m_create = makeButton(tr("Create"), "primary", this);
    m_create->setObjectName(QStringLiteral("createButton"));
}

void CreateSafePage::layOut()
{
    auto *column = new QVBoxLayout;
    column->setContentsMargins({});
    column->setSpacing(0);
    column->addWidget(m_offer);
    column->addSpacing(Style::margin);
    column->addWidget(makeLabel(tr("Create a safe"), "title", this));
    column->addSpacing(Style::spacing);
    auto *warning =
        makeLabel(tr("Only you know its password. It cannot be recovered."), "muted", this);
    warning->setWordWrap(true);
    column->addWidget(warning);
    column->addSpacing(Style::margin);
    for (std::size_t i = 0; i < m_fields.size(); ++i) {
        column->addWidget(m_fields[i]);
        // Its place stays when it is empty, so that nothing jumps while one types.
        m_messages[i]->setFixedHeight(Style::scaled(27));
        m_messages[i]->setContentsMargins(2, 2, 0, 0);
        m_messages[i]->setAlignment(Qt::AlignTop);
        column->addWidget(m_messages[i]);
    }
    column->addWidget(m_failure);
    column->addSpacing(Style::spacing);
    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(10);
    buttons->addWidget(m_back, 1);
    buttons->addWidget(m_create, 1);
    column->addLayout(buttons);

    auto *frame = new QWidget(this);
    frame->setFixedWidth(Style::scaled(columnWidth));
    frame->setLayout(column);
    auto *inside = new QWidget(this);
    inside->setObjectName(QStringLiteral("createSafeBody"));
    auto *rows = new QVBoxLayout(inside);
    rows->setContentsMargins({});
    rows->addStretch(3);
    rows->addLayout(centred(frame));
    rows->addStretch(4);
    // With large texts on a small screen it is higher than the window.
    auto *scroll = new QScrollArea(this);
    scroll->setObjectName(QStringLiteral("createSafeScroll"));
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    scroll->setFocusPolicy(Qt::NoFocus);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setWidget(inside);
    auto *all = new QVBoxLayout(this);
    all->setContentsMargins(0, Style::margin, 0, Style::margin);
    all->addWidget(scroll);
    for (std::size_t i = 1; i < m_fields.size(); ++i)
        setTabOrder(m_fields[i - 1], m_fields[i]);
    // The way on comes before the way back.
    setTabOrder(m_fields.back(), m_create);
    setTabOrder(m_create, m_back);
}

void CreateSafePage::connectFields()
{
    for (int i = 0; i < CreateSafeRules::FieldCount; ++i) {
        QLineEdit *field = m_fields[static_cast<std::size_t>(i)];
        connect(field, &QLineEdit::textEdited, this, [this, i] { onEdited(i); });
        connect(field, &QLineEdit::returnPressed, this, [this, i] { onReturn(i); });
    }
    connect(m_back, &QPushButton::clicked, this, &CreateSafePage::backRequested);
    connect(m_create, &QPushButton::clicked, this, &CreateSafePage::create);
}

void CreateSafePage::start()
{
    reset();
    m_offer->setText(m_core.knownSafes().entries().isEmpty()
                         ? tr("You have not Safe yet\nCreate one?")
                         : tr("Create\nanother one?"));
}

void CreateSafePage::reset()
{
    for (QLineEdit *field : m_fields)
        field->setText(QString());
    clearSecrets();
    m_failure->setMessage({});
    m_reached = -1;
    showMessages();
}

void CreateSafePage::takeFocus()
{
    m_fields[CreateSafeRules::Name]->setFocus();
}

void CreateSafePage::clearSecrets()
{
    m_password->clearSecret();
    m_confirm->clearSecret();
}

CreateSafeRules::Input CreateSafePage::input() const
{
    return {m_fields[CreateSafeRules::Name]->text(), m_password->text(), m_confirm->text(),
            m_fields[CreateSafeRules::Hint]->text()};
}

void CreateSafePage::onEdited(int field)
{
    m_reached = qMax(m_reached, field);
    m_failure->setMessage({});
    showMessages();
}

void CreateSafePage::onReturn(int field)
{
    if (m_create->isEnabled())
        create();
    else if (field < CreateSafeRules::Hint)
        m_fields[static_cast<std::size_t>(field) + 1]->setFocus();
}

void CreateSafePage::create()
{
    const CreateSafeRules::Input entered = input();
    if (!CreateSafeRules::canCreate(entered))
        return;
    if (m_core.createSafe(entered.name, entered.password, entered.hint))
        reset();
    else
        m_failure->setMessage(tr("Create safe failed!"));
}

void CreateSafePage::showMessages()
{
    const CreateSafeRules::Input entered = input();
    for (int i = 0; i < CreateSafeRules::FieldCount; ++i) {
        // The field after the last edited one says what it waits for; further ones stay quiet.
        const bool reached = m_reached >= 0 && i <= m_reached + 1;
        const auto message = reached ? CreateSafeRules::message(entered, CreateSafeRules::Field(i))
                                     : CreateSafeRules::Message();
        MessageLabel *label = m_messages[static_cast<std::size_t>(i)];
        label->setMessage(message.text);
        const QString color = m_theme.lockPalette().strength(message.strength).name();
        label->setStyleSheet(message.strength > 0 ? QStringLiteral("color: %1;").arg(color)
                                                  : QString());
    }
    m_create->setEnabled(CreateSafeRules::canCreate(entered));
}

void CreateSafePage::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape) {
        Q_EMIT backRequested();
        return;
    }
    QWidget::keyPressEvent(event);
}
