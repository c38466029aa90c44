#pragma once

#include "Clock.h"
#include "HealthRules.h"
#include "ItemListModel.h"
#include "PasswordWeakness.h"

#include <QHash>
#include <QTimer>

#include <array>

/// One thing that is wrong with one item.
struct HealthFinding
{
    HealthProblem problem = HealthProblem::Weak;
    QString itemId;
    bool ignored = false;
    int level = 0;               ///< of Weak: the strength of the password
    QVector<PasswordPart> parts; ///< of Weak
    int others = 0;              ///< of Reused: how many other items have the password
    QString otherTitle;          ///< of Reused: the title of one of them
    QDate date;                  ///< of Old: the last change; of Expiring: the last day
};

Q_DECLARE_TYPEINFO(HealthFinding, Q_MOVABLE_TYPE);

/// Looks after the passwords, addresses and dates of the items of a safe. Estimating takes long, so
/// it goes on in slices between events, and a password is estimated anew only when it changes.
/// Passwords are compared by digests under a key of this run; no copy of them is kept.
class ItemHealth : public QObject
{
    Q_OBJECT

public:
    /// The items have to outlive the object.
    explicit ItemHealth(const ItemListModel &items, QObject *parent = nullptr,
                        Clock clock = systemTime, RandomSource random = systemRandom);

    /// From now on the items are looked at; until then nothing is known of them.
    void start();
    bool isStarted() const { return m_started; }
    /// How many items are still to be looked at.
    int pending() const { return m_pending.size(); }

    /// What is wrong with the items that are not in the trash, by their titles.
    QVector<HealthFinding> findings() const;

    bool isWeak(const PMListItem &item) const;

Q_SIGNALS:
    /// What is known became more, or other.
    void changed();

private:
    struct Record
    {
        QByteArray digest; ///< of the password; empty when there is none
        int level = 0;
        QVector<PasswordPart> parts;
    };

    /// Items by the digests of their passwords.
    using Owners = QHash<QByteArray, QVector<const PMListItem *>>;

    void reset();
    void enqueue(const QString &id);
    void work();
    void examine(const PMListItem &item);
    QByteArray digest(const QString &password) const;
    Owners owners() const;
    void addFindings(QVector<HealthFinding> &list, const PMListItem &item, const Owners &all,
                     const QDate &today) const;

    const ItemListModel &m_items;
    Clock m_clock;
    std::array<unsigned char, 32> m_key{};
    QHash<QString, Record> m_records;
    QStringList m_pending;
    QTimer m_timer;
    bool m_started = false;
};
