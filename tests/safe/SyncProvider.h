#pragma once

#include "SafeTesting.h"

#include <QRegularExpression>

#include <filesystem>
#include <random>

const qint64 day = 86400000;

/// Random choices from a seed.
class Dice
{
public:
    explicit Dice(unsigned seed)
        : m_random(seed)
    {
    }
    int pick(int count) { return static_cast<int>(m_random() % static_cast<unsigned>(count)); }
    bool oneIn(int count) { return pick(count) == 0; }
    QString any(const QStringList &list) { return list.at(pick(list.size())); }

private:
    std::mt19937 m_random;
};

inline QStringList filesIn(const QString &folder)
{
    QStringList names = snapshot(folder).keys();
    // Nothing that is being written, and no lock.
    const QRegularExpression own("^(content|attachment)/|^safe[^/]*$"_s);
    return names.filter(own);
}

/// Gives files that were just written a time of their own, as if each change came long after the
/// one before it.
inline void age(const QString &folder, int &time)
{
    namespace fs = std::filesystem;
    const auto young = fs::file_time_type::clock::now() - std::chrono::hours(1);
    const QStringList names = filesIn(folder);
    for (const QString &name : names) {
        const fs::path path((folder + QLatin1Char('/') + name).toStdString());
        if (fs::last_write_time(path) > young)
            fs::last_write_time(path,
                                young - std::chrono::hours(1000) + std::chrono::seconds(++time));
    }
}

/// The folder that a provider keeps on its server. Every computer has a copy of it, into which
/// changes come one file at a time, in any order, sometimes half of one first.
class Provider
{
public:
    struct Replica
    {
        QString folder;
        QMap<QString, int> versions;        ///< by path: what was last seen of the server
        QMap<QString, QByteArray> contents; ///< and what it was
        QMap<QString, QByteArray> halves;   ///< what has arrived of a file of which more comes

        QString file(const QString &path) const { return folder + QLatin1Char('/') + path; }
    };

    explicit Provider(Dice &dice)
        : m_dice(dice)
    {
    }

    QStringList paths(const Replica &replica) const
    {
        QStringList all = filesIn(replica.folder) + m_files.keys();
        all.removeDuplicates();
        all.sort();
        return all;
    }

    /// Brings one file of a replica and of the server together. True when something changed.
    bool exchange(Replica &replica, const QString &path)
    {
        const QByteArray bytes = contentOf(replica.file(path));
        const bool isThere = QFile::exists(replica.file(path));
        const bool isHalf = replica.halves.contains(path) && replica.halves[path] == bytes;
        const bool changedHere = !isHalf && (isThere != replica.contents.contains(path) ||
                                             (isThere && bytes != replica.contents[path]));
        const File server = m_files.value(path);
        if (server.version == replica.versions.value(path)) {
            if (changedHere)
                upload(replica, path, isThere, bytes);
            return changedHere;
        }
        // A removal loses to a change. Of two changes, this computer's becomes a file of its own.
        if (changedHere && isThere && server.exists && bytes != server.content) {
            if (!QFile::rename(replica.file(path), replica.file(copyName(path))))
                qFatal("can't rename %s", qPrintable(path));
        }
        if (changedHere && isThere && !server.exists)
            upload(replica, path, true, bytes);
        else
            download(replica, path, server);
        return true;
    }

    void stopHalves() { m_halves = false; }
    void startHalves() { m_halves = true; }

private:
    struct File
    {
        QByteArray content;
        int version = 0;
        bool exists = false;
    };

    void upload(Replica &replica, const QString &path, bool isThere, const QByteArray &bytes)
    {
        m_files[path] = {bytes, ++m_versions, isThere};
        note(replica, path, m_files[path]);
    }

    void download(Replica &replica, const QString &path, const File &server)
    {
        if (!server.exists) {
            QFile::remove(replica.file(path));
        } else if (m_halves && m_dice.oneIn(6)) {
            replica.halves[path] = server.content.left(server.content.size() / 2);
            writeFile(replica.file(path), replica.halves[path]);
            return;
        } else {
            writeFile(replica.file(path), server.content);
        }
        note(replica, path, server);
    }

    static void note(Replica &replica, const QString &path, const File &server)
    {
        replica.halves.remove(path);
        replica.versions[path] = server.version;
        if (server.exists)
            replica.contents[path] = server.content;
        else
            replica.contents.remove(path);
    }

    QString copyName(const QString &path)
    {
        const QStringList forms{" (Ana's conflicted copy 2026-01-02 %1)"_s,
                                ".sync-conflict-20260102-%1-ABCDEFG"_s, " (%1)"_s, "-LAPTOP-%1"_s};
        const int form = m_dice.pick(forms.size());
        const int number = (form == 1 ? 100000 : 1) + ++m_copies;
        const QString mark = forms[form].arg(number);
        const int dot = path.lastIndexOf(QLatin1Char('.'));
        return dot < 0 ? path + mark : path.left(dot) + mark + path.mid(dot);
    }

    Dice &m_dice;
    QMap<QString, File> m_files;
    int m_versions = 0;
    int m_copies = 0;
    bool m_halves = true;
};
