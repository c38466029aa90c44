#pragma once

#include "GPMSafe.h"
#include "SiteAddress.h"

#include <QHash>
#include <QObject>
#include <QTimer>
#include <QVector>

#include <memory>
#include <optional>

class PMLogin;

/// Which logins of the open safe belong to a page. They are kept by their site, so that a page is
/// answered without a look at all of them.
class PageLogins : public QObject
{
    Q_OBJECT

public:
    explicit PageLogins(QObject *parent = nullptr);
    ~PageLogins() override;

    /// Follows another safe, or none.
    void setSafe(const std::shared_ptr<GPMSafe> &safe);

    /// The logins that may be filled into the page: first those of its very host, then the others
    /// of its site, each by title. None of the trash. The address may be any text.
    QStringList idsFor(const QString &pageUrl);

    /// All logins of the site of an address, which may be any text and needs no scheme, but those
    /// of the trash; in no order.
    QVector<const PMLogin *> loginsOf(const QString &site);

Q_SIGNALS:
    /// Other logins than before may belong to a page. Once for any number of changes in one turn of
    /// the event loop.
    void changed();

private:
    /// What is known of a login.
    struct Place
    {
        QString url;
        bool deleted = false;
        std::optional<SiteAddress> address;
    };

    void reload();
    void add(PMListItem *item);
    void remove(const QString &id);
    void follow(PMListItem *item);
    void read(PMListItem *item);
    void forget(PMListItem *item);
    void readSome();
    void readAll();
    void announce();

    std::shared_ptr<GPMSafe> m_safe;
    QHash<PMListItem *, Place> m_places;
    QHash<QString, QVector<PMListItem *>> m_bySite;
    QVector<PMListItem *> m_unread;
    QTimer m_reading; ///< runs while there are some
    QTimer m_announcement;
};
