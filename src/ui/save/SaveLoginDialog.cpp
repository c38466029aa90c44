#include "SaveLoginDialog.h"

#include "GPMAppCore.h"
#include "SaveLoginForm.h"
#include "lock/UnlockLogic.h"
#include "style/Style.h"
#include "style/Theme.h"
#include "widgets/Controls.h"
#include "widgets/ElidedLabel.h"
#include "widgets/MessageLabel.h"
#include "widgets/PasswordField.h"
#include "widgets/Tile.h"

namespace {

const int usualWidth = 360;
const int tileSide = 34;

} // namespace

SaveLoginDialog::SaveLoginDialog(GPMAppCore &core, const Theme &theme, Clock clock)
    : FramedDialog(tr("Save login"), theme, nullptr)
    , m_core(core)
    , m_saving(core.loginSaving())
    , m_clock(std::move(clock))
    , m_text(makeLabel({}, "plain", this))
    , m_form(new SaveLoginForm(theme, this))
    , m_timeLeft(makeLabel({}, "muted", this))
    , m_message(new MessageLabel(this))
    , m_never(makeButton(tr("Never for this site"), "plain", this))
    , m_notNow(makeButton(tr("Not now"), "plain", this))
    , m_save(makeButton(tr("Save"), "primary", this))
    , m_unlock(std::make_unique<UnlockLogic>(core))
{
    setObjectName(QStringLiteral("saveLoginDialog"));
    // The user may be typing in the browser.
    setAttribute(Qt::WA_ShowWithoutActivating);
    setWindowFlag(Qt::WindowStaysOnTopHint);
    setHeader(makeHeader(theme));
    m_never->setObjectName(QStringLiteral("neverButton"));
    m_notNow->setObjectName(QStringLiteral("notNowButton"));
    m_save->setObjectName(QStringLiteral("saveButton"));
    m_text->setObjectName(QStringLiteral("saveLoginText"));
    m_text->setWordWrap(true);
    m_timeLeft->setObjectName(QStringLiteral("timeLeft"));
    m_timeLeft->setWordWrap(true);
    m_message->setObjectName(QStringLiteral("saveLoginMessage"));
    m_message->setTextFormat(Qt::PlainText);
    m_message->setWordWrap(true);
    setStyleProperty(*m_message, "tone", QStringLiteral("error"));
    m_save->setDefault(true);
    makeUnlocking(theme);
    layOut();
    connectAll();
    showOffer();
}

SaveLoginDialog::~SaveLoginDialog()
{
    m_form->clearSecret();
    m_master->clearSecret();
}

QWidget *SaveLoginDialog::makeHeader(const Theme &theme)
{
    auto *header = new QWidget(this);
    m_tile = new Tile(Style::scaled(tileSide), theme, header);
    m_headline = makeLabel({}, "heading", header);
    m_headline->setObjectName(QStringLiteral("saveLoginHeadline"));
    m_host = new ElidedLabel("muted", header);
    m_host->setObjectName(QStringLiteral("saveLoginHost"));
    auto *texts = new QVBoxLayout;
    texts->setSpacing(1);
    texts->addWidget(m_headline);
    texts->addWidget(m_host);
    auto *row = new QHBoxLayout(header);
    row->setContentsMargins({});
    row->setSpacing(Style::gap);
    row->addWidget(m_tile);
    row->addLayout(texts, 1);
    return header;
}

void SaveLoginDialog::makeUnlocking(const Theme &theme)
{
    m_master = new PasswordField(theme.icon(QStringLiteral("eye"), Palette::Muted),
                                 theme.icon(QStringLiteral("eye-off"), Palette::Muted), this);
    m_master->setObjectName(QStringLiteral("masterPassword"));
    m_master->setPlaceholderText(tr("Master password"));
    m_master->setAccessibleName(tr("Master password"));
    m_seconds.setInterval(1000);
}

void SaveLoginDialog::layOut()
{
    m_buttons = new QHBoxLayout;
    m_buttons->setSpacing(Style::spacing);
    m_buttons->addWidget(m_never);
    m_buttons->addStretch();
    m_buttons->addWidget(m_notNow);
    m_buttons->addWidget(m_save);
    body().setSpacing(Style::gap);
    body().addWidget(m_text);
    body().addWidget(m_master);
    body().addWidget(m_form);
    body().addWidget(m_timeLeft);
    body().addWidget(m_message);
    body().addLayout(m_buttons);
    setTabOrder(m_master, m_form);
    setTabOrder(m_form, m_never);
    setTabOrder(m_never, m_notNow);
    setTabOrder(m_notNow, m_save);
}

void SaveLoginDialog::connectAll()
{
    connect(m_save, &QPushButton::clicked, this, &SaveLoginDialog::save);
    connect(m_notNow, &QPushButton::clicked, this, &SaveLoginDialog::reject);
    connect(m_never, &QPushButton::clicked, this, &SaveLoginDialog::exclude);
    connect(m_form, &SaveLoginForm::chosen, this, [this] {
        showHeadline();
        showButtons();
    });
    connect(&m_seconds, &QTimer::timeout, this, &SaveLoginDialog::showTimeLeft);
    connect(m_unlock.get(), &UnlockLogic::changed, this, &SaveLoginDialog::showUnlocking);
    connect(m_unlock.get(), &UnlockLogic::refused, this, [this] {
        m_master->clearSecret();
        m_master->setFocus();
    });
    connect(&m_saving, &LoginSaving::saveFailed, this, [this] {
        // The change stays in the safe, whatever is answered.
        m_notNow->setText(tr("Close"));
        showButtons();
        m_save->setFocus();
        tell(tr("The login is in the safe now, but it could not be written to the disk. Check the "
                "free space and the permissions, then try again."));
    });
}

LoginOffer::State SaveLoginDialog::state() const
{
    return m_saving.offer() ? m_saving.offer()->state : LoginOffer::Known;
}

void SaveLoginDialog::showOffer()
{
    const LoginOffer &offer = *m_saving.offer();
    m_tile->setItem(offer.siteTitle, PMListItem::Login);
    m_host->setFullText(offer.request.host());
    m_host->setToolTip(offer.request.host());
    const bool locked = offer.state == LoginOffer::Locked;
    m_form->setOffer(offer);
    m_form->setVisible(offer.state == LoginOffer::Decided);
    m_text->setText(textOf(offer));
    m_text->setVisible(!m_text->text().isEmpty());
    m_master->setVisible(locked);
    m_master->clearSecret();
    m_timeLeft->setVisible(locked);
    m_notNow->setText(tr("Not now"));
    tell({});
    if (locked)
        m_seconds.start();
    else
        m_seconds.stop();
    showTimeLeft();
    showHeadline();
    showButtons();
    if (locked)
        m_master->setFocus();
    else
        m_save->setFocus();
    fit();
}

QString SaveLoginDialog::textOf(const LoginOffer &offer) const
{
    if (offer.state == LoginOffer::Locked)
        return tr("Your safe is locked. Unlock it to save this login.");
    if (offer.state == LoginOffer::Known)
        return tr("Your safe has this login already, so there is nothing to save.");
    return offer.isLast ? tr("You declined logins of this site before. If you do so now, it is not "
                             "offered again until you lock the safe.")
                        : QString();
}

void SaveLoginDialog::showHeadline()
{
    if (state() == LoginOffer::Known)
        m_headline->setText(tr("Already saved"));
    else
        m_headline->setText(m_form->isUpdate() && state() == LoginOffer::Decided
                                ? tr("Update this login?")
                                : tr("Save this login?"));
}

void SaveLoginDialog::showButtons()
{
    const bool known = state() == LoginOffer::Known;
    const bool locked = state() == LoginOffer::Locked;
    const bool busy = m_saving.isSaving() || m_unlock->state() == UnlockLogic::State::Unlocking;
    m_never->setVisible(!known);
    m_notNow->setVisible(!known);
    for (QWidget *control : {static_cast<QWidget *>(m_never), static_cast<QWidget *>(m_save),
                             static_cast<QWidget *>(m_master), static_cast<QWidget *>(m_form)})
        control->setEnabled(!busy);
    if (known)
        m_save->setText(tr("OK"));
    else if (locked)
        m_save->setText(m_unlock->isOpenElsewhere() ? tr("Unlock anyway") : tr("Unlock"));
    else
        m_save->setText(m_form->isUpdate() ? tr("Update") : tr("Save"));
    fit();
}

void SaveLoginDialog::showUnlocking()
{
    if (state() != LoginOffer::Locked) {
        showButtons();
        // While it was disabled, the keyboard went to the button beside it.
        m_save->setFocus();
        return;
    }
    const bool unlocking = m_unlock->state() == UnlockLogic::State::Unlocking;
    tell(m_unlock->message());
    showButtons();
    if (unlocking)
        m_timeLeft->setText(tr("Unlocking…"));
    // May end the offer, and with it this window.
    m_saving.setUnlocking(unlocking);
}

void SaveLoginDialog::showTimeLeft()
{
    const LoginOffer *offer = m_saving.offer();
    if (!offer || m_unlock->state() == UnlockLogic::State::Unlocking)
        return;
    const qint64 left = m_clock().msecsTo(offer->until);
    const int seconds = static_cast<int>(qBound<qint64>(0, (left + 999) / 1000, 60));
    m_timeLeft->setText(
        tr("What you typed is kept for %n more seconds, then forgotten.", nullptr, seconds));
}

void SaveLoginDialog::tell(const QString &fault)
{
    m_message->setMessage(fault);
    m_message->setVisible(!fault.isEmpty());
    fit();
}

/// Takes the height that the content needs; the top stays. The width grows where the words on the
/// buttons are long, and never shrinks again.
void SaveLoginDialog::fit()
{
    for (QPushButton *button : {m_never, m_notNow, m_save})
        button->ensurePolished();
    const QMargins margins = body().contentsMargins();
    const int needed = m_buttons->sizeHint().width() + margins.left() + margins.right();
    m_width = qMax(m_width, qMax(Style::scaled(usualWidth), needed));
    FramedDialog::setFixedWidth(m_width);
    // Wrapped labels tell their height once they have their width.
    for (QLabel *label : {m_text, m_timeLeft, static_cast<QLabel *>(m_message)}) {
        if (!label->isHidden())
            keepTextHeight(*label, m_width - margins.left() - margins.right());
    }
    layout()->activate();
    QDialog::resize(width(), minimumSizeHint().height());
}

void SaveLoginDialog::accept()
{
    save();
}

void SaveLoginDialog::save()
{
    if (state() == LoginOffer::Known) {
        reject();
        return;
    }
    if (state() == LoginOffer::Locked) {
        m_unlock->unlock(m_master->text());
        if (m_unlock->state() == UnlockLogic::State::Unlocking)
            m_master->clearSecret();
        return;
    }
    const LoginChoice choice = m_form->choice();
    if (choice.password.isEmpty()) {
        tell(tr("There is no password to save. Type it in, or choose Not now."));
        return;
    }
    tell({});
    if (!m_saving.save(choice))
        tell(tr("That login is no longer in the safe. Choose again where to save."));
    showButtons();
}

void SaveLoginDialog::exclude()
{
    if (!m_saving.exclude())
        tell(tr("The list of sites could not be written. Check the free space and the permissions "
                "of the settings folder."));
}

void SaveLoginDialog::reject()
{
    if (m_unlock->state() == UnlockLogic::State::Unlocking)
        m_unlock->cancel();
    else if (!m_saving.isSaving())
        m_saving.decline();
}
