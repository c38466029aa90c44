#pragma once

#include "PMAttachment.h"
#include "PMLogin.h"
#include "SafeTesting.h"
#include "SyncRound.h"

#include <QBuffer>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

#include <filesystem>

const QString newPassword = "another password 2"_s;
const qint64 day = 86400000;

/// A safe on one computer. It is unlocked anew for each piece of work, as on a computer that is
/// started for it.
struct Computer
{
    QString folder;
    QString password = samplePassword;
    qint64 time = 1700000000000; ///< of its clock
    std::shared_ptr<FaultyFiles> files = std::make_shared<FaultyFiles>();
    SyncRecord::Deletions deleted{};

    SafeEnvironment environment()
    {
        SafeEnvironment world;
        world.files = files;
        world.lockWaitMs = 0;
        world.clock = [this] { return QDateTime::fromMSecsSinceEpoch(++time, Qt::UTC); };
        return world;
    }

    void work(const std::function<void(GPMSafe &)> &task)
    {
        GPMSafe safe(environment());
        if (!safe.open(folder) || !safe.unlock(password))
            qFatal("the safe does not open");
        task(safe);
        if (safe.isUnlocked() && !safe.saveChanges())
            qFatal("the safe does not save");
    }

    SyncResult synchronise(const QString &mirror)
    {
        SyncRound round({environment(), SafeFolder(folder),
                         std::make_shared<const SecretBytes>(SecretBytes::fromText(password)),
                         std::make_shared<QMutex>(), deleted},
                        mirror);
        WorkControl control;
        return round.run(control);
    }

    /// Each item's id with its title, and for an attachment its bytes.
    QStringList items()
    {
        QStringList list;
        work([&list](GPMSafe &safe) {
            for (PMListItem *item : safe.items()) {
                QString line = item->id() + QLatin1Char(' ') + item->title();
                if (item->deleted())
                    line += " (trash)"_s;
                if (item->type() == PMListItem::Attachment) {
                    QBuffer bytes;
                    bytes.open(QIODevice::WriteOnly);
                    safe.readAttachment(item->id(), bytes);
                    line += QLatin1Char(' ') + QString::fromLatin1(bytes.data());
                }
                list.append(line);
            }
        });
        return list;
    }
};

inline void makeOld(const QString &path)
{
    namespace fs = std::filesystem;
    std::error_code none;
    fs::last_write_time(path.toStdString(),
                        fs::file_time_type::clock::now() - std::chrono::hours(1), none);
}

/// Two computers with one safe, and its mirror.
class SyncSides : public QObject
{
protected:
    void start()
    {
        m_temporary = std::make_unique<QTemporaryDir>();
        m_mirror = m_temporary->filePath("mirror"_s);
        m_one = {m_temporary->filePath("one"_s)};
        m_two = {m_temporary->filePath("two"_s)};
        QVERIFY(QDir().mkpath(m_one.folder) && QDir().mkpath(inMirror("content"_s)) &&
                QDir().mkpath(inMirror("attachment"_s)));
        {
            GPMSafe safe(m_one.environment());
            QVERIFY(safe.init(m_one.folder, samplePassword, "Mine"_s, {}));
        }
        writeSafe(m_two.folder, snapshot(m_one.folder));
    }

    QString add(Computer &computer, const QString &title)
    {
        QString id;
        computer.work([&](GPMSafe &safe) {
            auto login = std::make_unique<PMLogin>();
            login->setTitle(title);
            id = safe.addItem(std::move(login))->id();
        });
        return id;
    }

    QString attach(Computer &computer, const QByteArray &content)
    {
        QString id;
        computer.work([&](GPMSafe &safe) {
            QBuffer bytes;
            bytes.setData(content);
            bytes.open(QIODevice::ReadOnly);
            auto item = std::make_unique<PMAttachment>();
            item->setTitle("file"_s);
            id = safe.addAttachment(std::move(item), bytes)->id();
        });
        return id;
    }

    static void rename(Computer &computer, const QString &id, const QString &title)
    {
        computer.work([&](GPMSafe &safe) {
            safe.item(id)->setTitle(title);
            safe.touchItem(*safe.item(id));
        });
    }

    static void remove(Computer &computer, const QString &id)
    {
        computer.work([&](GPMSafe &safe) {
            const PMListItem *item = safe.item(id);
            const qint64 version = item ? item->modified().toMSecsSinceEpoch() : 0;
            if (safe.removeItems({id}))
                computer.deleted.insert(id, {++computer.time, 0, {version}});
        });
    }

    static void changePassword(Computer &computer, const QString &password)
    {
        computer.work([&](GPMSafe &safe) { QVERIFY(safe.changePassword(password)); });
        computer.password = password;
    }

    void meet()
    {
        for (int round = 0; round < 3; ++round) {
            QCOMPARE(m_one.synchronise(m_mirror).state, SyncState::Done);
            QCOMPARE(m_two.synchronise(m_mirror).state, SyncState::Done);
        }
    }

    /// A round with something of every kind to do, and its sides as they are before it.
    void makeWork()
    {
        const QString changed = add(m_one, "changed"_s);
        m_gone = add(m_one, "gone"_s);
        attach(m_one, "some bytes");
        meet();
        rename(m_two, changed, "theirs"_s);
        add(m_two, "new"_s);
        remove(m_two, m_gone);
        QCOMPARE(m_two.synchronise(m_mirror).state, SyncState::Done);
        m_one.time += day;
        rename(m_one, changed, "mine"_s);
        attach(m_one, "other bytes");
        m_one.work([](GPMSafe &safe) { QVERIFY(safe.changePassword(samplePassword)); });
        m_before.clear();
        for (const QString &side : {m_one.folder, m_two.folder, m_mirror})
            m_before.insert(side, snapshot(side));
        m_one.files->operations = 0;
    }

    void putWorkBack()
    {
        for (auto side = m_before.begin(); side != m_before.end(); ++side) {
            QDir(side.key()).removeRecursively();
            writeSafe(side.key(), side.value());
        }
        m_one.files->operations = 0;
    }

    QString inMirror(const QString &name) const { return m_mirror + QLatin1Char('/') + name; }

    std::unique_ptr<QTemporaryDir> m_temporary;
    QString m_mirror;
    Computer m_one;
    Computer m_two;
    QMap<QString, QMap<QString, QByteArray>> m_before; ///< files of the sides before a round
    QString m_gone;                                    ///< id of an item that goes in it
};
