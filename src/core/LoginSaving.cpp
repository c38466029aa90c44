#include "LoginSaving.h"

#include "PMLogin.h"
#include "PasswordStrength.h"
#include "SiteAddress.h"

#include <QDebug>
#include <QLocale>
#include <QMessageAuthenticationCode>
#include <QRandomGenerator>

#include <algorithm>

namespace {

constexpr int mostDeclined = 200;
constexpr int longestId = 100;
/// How long what was filled may take to be sent.
constexpr qint64 filledMs = 180000;

QString captureIdOf(const QJsonObject &object)
{
    return object.value(QLatin1String("captureId")).toString().left(longestId);
}

bool isSameSite(const SaveLoginRequest &a, const SaveLoginRequest &b)
{
    const auto one = SiteAddress::parse(SiteAddress::withScheme(a.site));
    const auto other = SiteAddress::parse(SiteAddress::withScheme(b.site));
    return one && other && one->isSameSite(*other);
}

QString siteOf(const SaveLoginRequest &request)
{
    const auto address = SiteAddress::parse(SiteAddress::withScheme(request.site));
    return address ? address->site() : request.host();
}

QByteArray randomKey()
{
    QByteArray key(32, Qt::Uninitialized);
    QRandomGenerator::system()->generate(key.begin(), key.end());
    return key;
}

} // namespace

LoginSaving::LoginSaving(ItemChanges::FindSafe safe, ItemChanges &items, PageLogins &pageLogins,
                         const QString &excludedSitesFile, Clock clock, QObject *parent)
    : QObject(parent)
    , m_safe(std::move(safe))
    , m_items(items)
    , m_pageLogins(pageLogins)
    , m_excluded(excludedSitesFile)
    , m_clock(clock)
    , m_captures(std::move(clock), this)
    , m_traceKey(randomKey())
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &LoginSaving::forgetOld);
}

void LoginSaving::keepSubmitted(const QString &callerId, const QJsonObject &payload)
{
    const QString id = captureIdOf(payload);
    const auto request =
        SaveLoginRequest::fromData(payload.value(QLatin1String("login")).toObject());
    // Without a safe there is nowhere to save it, and an excluded site is not even kept.
    if (!id.isEmpty() && m_safe() && !m_excluded.contains(request.site))
        m_captures.add(callerId, id, request);
}

void LoginSaving::dropSubmitted(const QString &callerId, const QJsonObject &payload)
{
    m_captures.take(callerId, captureIdOf(payload));
}

void LoginSaving::saveLogin(const QString &callerId, const QJsonObject &data)
{
    const QString id = captureIdOf(data);
    if (id.isEmpty()) {
        makeOffer(SaveLoginRequest::fromData(data),
                  m_clock().addMSecs(CapturedLogins::patience.count()));
    } else if (auto taken = m_captures.take(callerId, id)) {
        taken->first.place = SaveLoginRequest::placeOf(data);
        makeOffer(taken->first, taken->second);
    }
}

void LoginSaving::noteFilled(const QString &itemId)
{
    m_filled.insert(itemId, m_clock());
}

/// Whether a login of the site has the password and went into a page a moment ago: the page may
/// call its user by another name.
bool LoginSaving::isFilledJustNow(const SaveLoginRequest &request) const
{
    const QVector<const PMLogin *> all = loginsFor(request);
    return std::any_of(all.begin(), all.end(), [&](const PMLogin *login) {
        const QDateTime filled = m_filled.value(login->id());
        return filled.isValid() && qAbs(filled.msecsTo(m_clock())) <= filledMs &&
               login->password() == request.login.password;
    });
}

void LoginSaving::makeOffer(const SaveLoginRequest &request, const QDateTime &until)
{
    if (!m_safe() || request.login.password.isEmpty() || request.host().isEmpty())
        return;
    if (m_excluded.contains(request.site) || m_declined.contains(traceOf(request)) ||
        m_declinedOfSite.value(siteOf(request)) >= mostDeclinedOfSite)
        return;
    qDebug() << "Try favicon download:" << request.faviconUrl;
    LoginOffer offer;
    offer.request = request;
    offer.until = until;
    decide(offer);
    if (offer.state != LoginOffer::Known)
        enqueue(offer);
}

void LoginSaving::decide(LoginOffer &offer) const
{
    const std::shared_ptr<GPMSafe> safe = m_safe();
    const QVector<const PMLogin *> logins = loginsFor(offer.request);
    QMap<QString, QString> names;
    ::fillSaveLoginParams(offer.request, logins, offer.siteTitle, names);
    offer.isLast = m_declinedOfSite.value(siteOf(offer.request)) == mostDeclinedOfSite - 1;
    offer.state = LoginOffer::Locked;
    offer.candidates.clear();
    if (!safe || !safe->isUnlocked())
        return;
    offer.decision = decideSaveLogin(offer.request, logins);
    const bool isKnown =
        offer.decision.action == SaveLoginOffer::Nothing || isFilledJustNow(offer.request);
    offer.state = isKnown ? LoginOffer::Known : LoginOffer::Decided;
    for (const QString &id : names.keys()) {
        const auto *login = qobject_cast<const PMLogin *>(safe->item(id));
        offer.candidates.append({id, login->title(), login->login()});
    }
    std::sort(offer.candidates.begin(), offer.candidates.end(),
              [](const LoginOffer::Candidate &a, const LoginOffer::Candidate &b) {
                  return QString::localeAwareCompare(a.title, b.title) < 0;
              });
}

/// One offer a site, the newest; those of other sites wait for their turn, and all of them for the
/// one that is being written.
void LoginSaving::enqueue(const LoginOffer &offer)
{
    const auto firstWaiting = m_offers.begin() + (isSaving() ? 1 : 0);
    const auto same = std::find_if(firstWaiting, m_offers.end(), [&](const LoginOffer &other) {
        return isSameSite(other.request, offer.request);
    });
    const bool isFirst = same == m_offers.begin();
    if (same != m_offers.end())
        *same = offer;
    else if (m_offers.size() < mostOffers)
        m_offers.append(offer);
    else
        return;
    if (isFirst)
        m_savedId.clear();
    forgetOld();
    if (isFirst || m_offers.size() == 1)
        Q_EMIT offerChanged();
}

void LoginSaving::fillSaveLoginParams(QString &siteTitle, QMap<QString, QString> &candidates) const
{
    if (const LoginOffer *current = offer())
        ::fillSaveLoginParams(current->request, loginsFor(current->request), siteTitle, candidates);
}

/// The login that the choice is written into: the one to update, a new one, or the one that an
/// attempt before this has made.
PMLogin *LoginSaving::loginToWrite(const LoginChoice &choice)
{
    const std::shared_ptr<GPMSafe> safe = m_safe();
    const QString id = choice.itemId.isEmpty() ? m_savedId : choice.itemId;
    auto *login = safe ? qobject_cast<PMLogin *>(safe->item(id)) : nullptr;
    if (login && !login->deleted())
        return login;
    if (!choice.itemId.isEmpty())
        return nullptr;
    auto added = std::make_unique<PMLogin>();
    added->setUrl(m_offers.first().request.address);
    return qobject_cast<PMLogin *>(safe ? safe->addItem(std::move(added)) : nullptr);
}

bool LoginSaving::save(const LoginChoice &choice)
{
    if (m_offers.isEmpty() || isSaving())
        return false;
    PMLogin *login = loginToWrite(choice);
    if (!login) {
        decide(m_offers.first());
        Q_EMIT offerChanged();
        return false;
    }
    keepFormer(*login, choice.password);
    if (choice.itemId.isEmpty())
        login->setTitle(choice.title.trimmed().isEmpty() ? m_offers.first().siteTitle
                                                         : choice.title.trimmed());
    if (!choice.userName.isEmpty())
        login->setLogin(choice.userName);
    login->setPassword(choice.password);
    login->setStrength(
        static_cast<PMFieldTypes::PasswordStrength>(passwordStrengthLevel(choice.password)));
    login->setSecondaryText(login->login());
    m_savedId = login->id();
    m_waitsForDisk = true;
    connect(m_safe().get(), &GPMSafe::saved, this, &LoginSaving::onSafeSaved, Qt::UniqueConnection);
    m_items.changed(m_savedId);
    return true;
}

/// A site may have refused what is saved now; the password before it is not lost.
void LoginSaving::keepFormer(const PMLogin &login, const QString &password)
{
    if (login.password().isEmpty() || login.password() == password)
        return;
    const QString until = QLocale().toString(m_clock().toLocalTime(), QLocale::ShortFormat);
    m_items.keepFormer(login.id(), tr("%1 (former password, until %2)").arg(login.title(), until));
}

void LoginSaving::onSafeSaved(bool good)
{
    if (!isSaving())
        return;
    const std::shared_ptr<GPMSafe> safe = m_safe();
    const PMListItem *item = safe ? safe->item(m_savedId) : nullptr;
    if (!item) {
        // Removed meanwhile, as by a synchronisation: the user is asked anew.
        m_waitsForDisk = false;
        m_savedId.clear();
        decide(m_offers.first());
        Q_EMIT offerChanged();
        return;
    }
    // It may have been the end of a save that began before this one.
    if (good && item->isChanged())
        return;
    m_waitsForDisk = false;
    if (!good) {
        Q_EMIT saveFailed();
        return;
    }
    const SaveLoginRequest request = m_offers.first().request;
    m_items.dropOldFormer(m_savedId);
    Q_EMIT saved();
    removeFirst();
    if (!request.faviconUrl.isEmpty())
        Q_EMIT siteIconWanted(request.host(), request.faviconUrl);
}

void LoginSaving::decline()
{
    if (m_offers.isEmpty())
        return;
    if (m_declined.size() < mostDeclined) {
        m_declined.insert(traceOf(m_offers.first().request));
        ++m_declinedOfSite[siteOf(m_offers.first().request)];
    }
    removeFirst();
}

bool LoginSaving::exclude()
{
    if (m_offers.isEmpty() || !m_excluded.add(m_offers.first().request.site))
        return false;
    Q_EMIT excludedSitesChanged();
    const auto isExcluded = [this](const LoginOffer &offer) {
        return m_excluded.contains(offer.request.site);
    };
    m_offers.erase(std::remove_if(m_offers.begin() + 1, m_offers.end(), isExcluded),
                   m_offers.end());
    removeFirst();
    return true;
}

bool LoginSaving::includeAgain(const QString &site)
{
    if (!m_excluded.remove(site))
        return false;
    Q_EMIT excludedSitesChanged();
    return true;
}

void LoginSaving::removeFirst()
{
    m_offers.removeFirst();
    m_savedId.clear();
    m_waitsForDisk = false;
    Q_EMIT offerChanged();
}

void LoginSaving::setUnlocking(bool unlocking)
{
    m_isUnlocking = unlocking;
    if (!unlocking)
        forgetOld();
}

void LoginSaving::forgetOld()
{
    if (m_isUnlocking)
        return;
    const LoginOffer *former = offer();
    const QDateTime shown = former ? former->until : QDateTime();
    const QDateTime now = m_clock();
    QDateTime next;
    for (int i = m_offers.size() - 1; i >= 0; --i) {
        const LoginOffer &offer = m_offers.at(i);
        if (offer.state != LoginOffer::Locked)
            continue;
        // Longer than ever given: the clock was set back.
        if (offer.until <= now || now.msecsTo(offer.until) > CapturedLogins::patience.count())
            m_offers.removeAt(i);
        else if (!next.isValid() || offer.until < next)
            next = offer.until;
    }
    if (next.isValid())
        m_timer.start(static_cast<int>(now.msecsTo(next)));
    if (former && (!offer() || offer()->until != shown))
        Q_EMIT offerChanged();
}

void LoginSaving::decideAgain()
{
    m_isUnlocking = false;
    for (int i = m_offers.size() - 1; i >= 0; --i) {
        if (m_offers.at(i).state != LoginOffer::Locked)
            continue;
        decide(m_offers[i]);
        // The user who unlocked the safe for it is told.
        if (m_offers.at(i).state == LoginOffer::Known && i > 0)
            m_offers.removeAt(i);
    }
    m_timer.stop();
    if (!m_offers.isEmpty())
        Q_EMIT offerChanged();
}

void LoginSaving::clear()
{
    m_captures.clear();
    m_declined.clear();
    m_declinedOfSite.clear();
    m_filled.clear();
    m_savedId.clear();
    m_waitsForDisk = false;
    m_isUnlocking = false;
    if (m_offers.isEmpty())
        return;
    m_offers.clear();
    Q_EMIT offerChanged();
}

/// Tells the same login again without keeping it.
QByteArray LoginSaving::traceOf(const SaveLoginRequest &request) const
{
    QMessageAuthenticationCode code(QCryptographicHash::Sha256, m_traceKey);
    for (const QString &part : {request.host(), request.login.userName, request.login.password}) {
        code.addData(part.toUtf8());
        code.addData("\0", 1);
    }
    return code.result();
}

/// The logins of the site that the request names.
QVector<const PMLogin *> LoginSaving::loginsFor(const SaveLoginRequest &request) const
{
    const std::shared_ptr<GPMSafe> safe = m_safe();
    if (!safe || !safe->isUnlocked())
        return {};
    return m_pageLogins.loginsOf(request.site);
}
