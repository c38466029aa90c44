#pragma once

#include "CapturedLogins.h"
#include "Clock.h"
#include "ExcludedSites.h"
#include "ItemChanges.h"
#include "PageLogins.h"
#include "SaveLogin.h"

#include <QMap>
#include <QObject>
#include <QSet>
#include <QTimer>
#include <QVector>

/// A login that was typed into a page, and what the user is asked about it.
struct LoginOffer
{
    enum State {
        Locked,  ///< the safe has to be unlocked first, by `until`
        Decided, ///< add or update, as `decision` says
        Known    ///< it turned out, after unlocking, that the safe has it
    };

    /// A login of the site that could be updated.
    struct Candidate
    {
        QString id;
        QString title;
        QString userName;
    };

    State state = Decided;
    SaveLoginRequest request;
    SaveLoginOffer decision;
    bool isLast = false; ///< declined, the site is not offered again until the safe locks
    QString siteTitle;
    QVector<Candidate> candidates;
    QDateTime until;
};

/// What the user made of an offer.
struct LoginChoice
{
    QString itemId; ///< the login to update; empty for a new one
    QString title;  ///< of a new one
    QString userName;
    QString password;
};

/// Saves what the user types into pages: keeps reported logins until their page has accepted them,
/// decides what to offer, one at a time, and writes what the user wants. What the extension reports
/// of a page is the page's word, its address excepted: it can cause an offer for its own site.
class LoginSaving : public QObject
{
    Q_OBJECT

public:
    static constexpr int mostOffers = 5;
    /// A page that pretends to have been given logins is not to wear the user down.
    static constexpr int mostDeclinedOfSite = 3;

    /// @param safe the open one; null while there is none
    /// @param items outlives this, as does the next
    /// @param pageLogins the logins of that safe
    LoginSaving(ItemChanges::FindSafe safe, ItemChanges &items, PageLogins &pageLogins,
                const QString &excludedSitesFile, Clock clock = systemTime,
                QObject *parent = nullptr);

    /// What the user is to be asked now; null when nothing is.
    const LoginOffer *offer() const { return m_offers.isEmpty() ? nullptr : &m_offers.first(); }

    /// What the site of the offer is called, and its logins by id.
    void fillSaveLoginParams(QString &siteTitle, QMap<QString, QString> &candidates) const;

    /// Writes it; saved() or saveFailed() follows. False, with the offer renewed, when the login to
    /// update is no longer there.
    bool save(const LoginChoice &choice);
    bool isSaving() const { return !m_savedId.isEmpty() && m_waitsForDisk; }
    /// The user does not want it; the same is not offered again until the safe locks, nor is
    /// anything of a site of which this was said too often.
    void decline();
    /// The user never wants to be asked about the site. False when that cannot be remembered.
    bool exclude();
    /// Whether the safe is being unlocked for the offer, which then is not forgotten meanwhile.
    void setUnlocking(bool unlocking);

    const QStringList &excludedSites() const { return m_excluded.sites(); }
    bool includeAgain(const QString &site);

    /// Forgets, and wipes, all that was reported, as when the safe is locked.
    void clear();

public Q_SLOTS:
    /// "loginSubmitted": a page sent a login.
    void keepSubmitted(const QString &callerId, const QJsonObject &payload);
    /// "loginDropped": it was not accepted.
    void dropSubmitted(const QString &callerId, const QJsonObject &payload);
    /// "saveLogin": it was accepted. The login itself, or the "captureId" of one that was kept.
    void saveLogin(const QString &callerId, const QJsonObject &data);
    /// The program itself gave the item to a page.
    void noteFilled(const QString &itemId);
    /// The safe was unlocked.
    void decideAgain();

Q_SIGNALS:
    /// offer() is another one, or none, or tells something else.
    void offerChanged();
    void saved();
    /// It is in the safe, but not on the disk.
    void saveFailed();
    void excludedSitesChanged();
    /// The icon of a site of which a login was saved; the address is the page's word.
    void siteIconWanted(const QString &domain, const QString &iconAddress);

private:
    void makeOffer(const SaveLoginRequest &request, const QDateTime &until);
    void decide(LoginOffer &offer) const;
    void enqueue(const LoginOffer &offer);
    bool isFilledJustNow(const SaveLoginRequest &request) const;
    QByteArray traceOf(const SaveLoginRequest &request) const;
    QVector<const PMLogin *> loginsFor(const SaveLoginRequest &request) const;
    PMLogin *loginToWrite(const LoginChoice &choice);
    void keepFormer(const PMLogin &login, const QString &password);
    void onSafeSaved(bool good);
    void removeFirst();
    void forgetOld();

    ItemChanges::FindSafe m_safe;
    ItemChanges &m_items;
    PageLogins &m_pageLogins;
    ExcludedSites m_excluded;
    Clock m_clock;
    CapturedLogins m_captures;
    QVector<LoginOffer> m_offers;
    QTimer m_timer; ///< for offers on a locked safe
    QMap<QString, QDateTime> m_filled;
    QByteArray m_traceKey;
    QSet<QByteArray> m_declined;
    QMap<QString, int> m_declinedOfSite;
    QString m_savedId; ///< what the offer was written into
    bool m_waitsForDisk = false;
    bool m_isUnlocking = false;
};
