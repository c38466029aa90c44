#include "SaveLoginForm.h"

#include "PasswordStrength.h"
#include "style/Style.h"
#include "style/Theme.h"
#include "widgets/Badge.h"
#include "widgets/Controls.h"
#include "widgets/ElidedLabel.h"
#include "widgets/PasswordField.h"
#include "widgets/SelectBox.h"

#include <algorithm>

namespace {

const Palette::Role strengthRoles[] = {Palette::Terrible, Palette::Weak, Palette::Good,
                                       Palette::Strong};

} // namespace

SaveLoginForm::SaveLoginForm(const Theme &theme, QWidget *parent)
    : QFrame(parent)
    , m_theme(theme)
    , m_column(new QVBoxLayout(this))
{
    setObjectName(QStringLiteral("card"));
    m_column->setContentsMargins(1, 1, 1, 1);
    m_column->setSpacing(0);
    makeChooser(theme);
    m_title = makeLine("saveTitle");
    makeRow(tr("Title"), m_title, "saveTitleRow");
    m_userName = makeLine("saveUserName");
    m_former = new ElidedLabel("muted", this);
    m_former->setObjectName(QStringLiteral("formerUserName"));
    makeRow(tr("User name"), m_userName, "saveUserNameRow")->addWidget(m_former);
    makePassword(theme);
    connect(m_userName, &QLineEdit::textChanged, this, &SaveLoginForm::showUserName);
    connect(m_password, &QLineEdit::textChanged, this, &SaveLoginForm::showStrength);
    connect(m_login, QOverload<int>::of(&QComboBox::currentIndexChanged), this, [this] {
        showChoice();
        Q_EMIT chosen();
    });
}

QLineEdit *SaveLoginForm::makeLine(const char *name)
{
    auto *line = new TextField(this);
    line->setObjectName(QLatin1String(name));
    line->setProperty("look", QStringLiteral("row"));
    return line;
}

/// A row of the card, above a line: the caption and what can be changed.
QVBoxLayout *SaveLoginForm::makeRow(const QString &caption, QWidget *field, const char *name)
{
    auto *row = new QWidget(this);
    row->setObjectName(QLatin1String(name));
    auto *texts = new QVBoxLayout(row);
    texts->setContentsMargins({});
    texts->setSpacing(2);
    texts->addSpacing(7);
    auto *inner = new QVBoxLayout;
    inner->setContentsMargins(14, 0, 14, 0);
    inner->setSpacing(2);
    QLabel *label = makeLabel(caption, "label", row);
    label->setBuddy(field);
    field->setAccessibleName(caption);
    inner->addWidget(label);
    inner->addWidget(field);
    texts->addLayout(inner);
    texts->addSpacing(7);
    if (field != m_last) {
        auto *line = new QFrame(row);
        line->setObjectName(QStringLiteral("cardLine"));
        texts->addWidget(line);
    }
    m_column->addWidget(row);
    return inner;
}

void SaveLoginForm::makeChooser(const Theme &theme)
{
    m_login = new SelectBox(theme.icon(QStringLiteral("chevron-down"), Palette::Muted), this);
    m_login->setObjectName(QStringLiteral("saveInto"));
    m_login->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    // Without it the longest entry counts.
    m_login->setMinimumContentsLength(8);
    makeRow(tr("Save in"), m_login, "saveIntoRow");
}

void SaveLoginForm::makePassword(const Theme &theme)
{
    m_password = new PasswordField(theme.icon(QStringLiteral("eye"), Palette::Muted),
                                   theme.icon(QStringLiteral("eye-off"), Palette::Muted), this);
    m_password->setObjectName(QStringLiteral("savePassword"));
    m_password->setProperty("look", QStringLiteral("row"));
    auto *line = new QWidget(this);
    m_last = line;
    auto *both = new QHBoxLayout(line);
    both->setContentsMargins({});
    both->setSpacing(Style::gap);
    both->addWidget(m_password, 1);
    m_badgePlace = new QVBoxLayout;
    both->addLayout(m_badgePlace);
    makeRow(tr("Password"), line, "savePasswordRow");
    line->setAccessibleName({});
    m_password->setAccessibleName(tr("Password"));
}

void SaveLoginForm::setOffer(const LoginOffer &offer)
{
    m_offer = offer;
    m_title->setText(offer.siteTitle);
    m_title->setCursorPosition(0);
    // What one offer showed the next one hides.
    m_password->clearSecret();
    m_password->setText(offer.request.login.password);
    fillChooser(offer);
    showChoice();
}

void SaveLoginForm::fillChooser(const LoginOffer &offer)
{
    const QSignalBlocker quiet(m_login);
    m_login->clear();
    for (const LoginOffer::Candidate &login : offer.candidates)
        m_login->addItem(login.userName.isEmpty() ? login.title
                                                  : tr("%1 (%2)").arg(login.title, login.userName),
                         login.id);
    m_login->addItem(tr("A new login"), QString());
    const bool isUpdate = offer.decision.action == SaveLoginOffer::Update;
    m_login->setCurrentIndex(m_login->findData(isUpdate ? offer.decision.itemId : QString()));
    findChild<QWidget *>(QStringLiteral("saveIntoRow"))->setVisible(!offer.candidates.isEmpty());
}

const LoginOffer::Candidate *SaveLoginForm::candidate() const
{
    const QString id = m_login->currentData().toString();
    const auto found =
        std::find_if(m_offer.candidates.begin(), m_offer.candidates.end(),
                     [&id](const LoginOffer::Candidate &login) { return login.id == id; });
    return found == m_offer.candidates.end() ? nullptr : &*found;
}

bool SaveLoginForm::isUpdate() const
{
    return candidate() != nullptr;
}

void SaveLoginForm::showChoice()
{
    const LoginOffer::Candidate *login = candidate();
    findChild<QWidget *>(QStringLiteral("saveTitleRow"))->setVisible(!login);
    const QString typed = m_offer.request.login.userName;
    m_userName->setText(login && typed.isEmpty() ? login->userName : typed);
    m_userName->setCursorPosition(0);
    showUserName();
}

void SaveLoginForm::showUserName()
{
    const LoginOffer::Candidate *login = candidate();
    const bool isOther = login && !login->userName.isEmpty() && !m_userName->text().isEmpty() &&
                         login->userName != m_userName->text();
    m_former->setFullText(isOther ? tr("Until now: %1").arg(login->userName) : QString());
    m_former->setVisible(isOther);
}

void SaveLoginForm::showStrength()
{
    delete m_badge;
    m_badge = nullptr;
    if (m_password->text().isEmpty())
        return;
    const int level = qBound(1, passwordStrengthLevel(m_password->text()), 4);
    m_badge = new Badge(passwordStrengthLabel(level), strengthRoles[level - 1], m_theme, this);
    m_badge->setObjectName(QStringLiteral("saveStrength"));
    m_badgePlace->addWidget(m_badge);
}

LoginChoice SaveLoginForm::choice() const
{
    return {m_login->currentData().toString(), m_title->text(), m_userName->text().trimmed(),
            m_password->text()};
}

void SaveLoginForm::clearSecret()
{
    m_password->clearSecret();
    m_offer = {};
}
