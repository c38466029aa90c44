#pragma once

#include "../Text.h"
#include "GPMSafe.h"

#include <QCoreApplication>
#include <QDirIterator>
#include <QFile>
#include <QMap>
#include <QMutex>
#include <QThread>
#include <QWaitCondition>

#include <atomic>
#include <functional>
#include <memory>

const QString samplePassword = "master password 1"_s;

inline QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

inline void writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("can't write %s", qPrintable(path));
}

/// Every file below a folder with its content.
inline QMap<QString, QByteArray> snapshot(const QString &folder)
{
    QMap<QString, QByteArray> files;
    QDirIterator each(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (each.hasNext()) {
        const QString path = each.next();
        files.insert(QDir(folder).relativeFilePath(path), contentOf(path));
    }
    return files;
}

/// Writes what a snapshot holds into a folder, which is made where it is not there.
inline void writeFiles(const QString &folder, const QMap<QString, QByteArray> &files)
{
    for (auto file = files.begin(); file != files.end(); ++file) {
        const QString path = folder + QLatin1Char('/') + file.key();
        QDir().mkpath(QFileInfo(path).path());
        writeFile(path, file.value());
    }
}

/// The same as a safe's folder, which has its inner folders even when they are empty.
inline void writeSafe(const QString &folder, const QMap<QString, QByteArray> &files)
{
    for (const char *inner : {"content", "attachment", "favicon"})
        QDir().mkpath(folder + QLatin1Char('/') + QLatin1String(inner));
    writeFiles(folder, files);
}

/// A copy of the sample safe that another implementation made.
inline void copySampleSafe(const QString &folder)
{
    writeFiles(folder, snapshot(QStringLiteral(TEST_DATA_DIR "/safe")));
}

/// Longer than any drive of a busy computer takes to answer.
const int patientMs = 20000;

inline SafeEnvironment patient()
{
    SafeEnvironment environment;
    environment.lookWaitMs = patientMs;
    return environment;
}

/// Real files, but the operation of the given number fails: a write as it does on a full disk.
class FaultyFiles : public FileLayer
{
public:
    int failAt = 0; ///< 1 is the first; 0: none
    bool andAllBehind = false;
    std::function<void()> fault = [] {}; ///< called in the middle of the failing operation
    QString failPath;                    ///< writes of this file fail, too
    std::function<void(int)> watch;      ///< told the number of each operation as it begins
    std::atomic<int> operations{0};

    bool write(const QString &path, const Produce &produce, QIODevice::OpenMode mode) override
    {
        if (!fails() && path != failPath)
            return FileLayer::write(path, produce, mode);
        const auto produceAndFail = [&](QIODevice &device) {
            produce(device);
            fault();
            return false;
        };
        return FileLayer::write(path, produceAndFail, mode);
    }
    bool remove(const QString &path) override
    {
        if (!fails())
            return FileLayer::remove(path);
        fault();
        return false;
    }

protected:
    bool fails()
    {
        const int number = ++operations;
        if (watch)
            watch(number);
        return failAt > 0 && (number == failAt || (andAllBehind && number > failAt));
    }
};

/// Files of which those below one folder do not come before released, but to the GUI thread.
class HangingFiles : public FileLayer
{
public:
    explicit HangingFiles(const QString &folder)
        : m_folder(folder)
    {
    }

    std::optional<QByteArray> read(const QString &path) override
    {
        QMutexLocker locker(&m_mutex);
        m_asked = m_asked || path.startsWith(m_folder);
        while (!m_released && path.startsWith(m_folder) &&
               QThread::currentThread() != QCoreApplication::instance()->thread())
            m_answers.wait(&m_mutex);
        return FileLayer::read(path);
    }

    void release()
    {
        const QMutexLocker locker(&m_mutex);
        m_released = true;
        m_answers.wakeAll();
    }

    void hangAgain()
    {
        const QMutexLocker locker(&m_mutex);
        m_released = m_asked = false;
    }

    bool isAsked()
    {
        const QMutexLocker locker(&m_mutex);
        return m_asked;
    }

private:
    QString m_folder;
    bool m_released = false;
    bool m_asked = false;
    QMutex m_mutex;
    QWaitCondition m_answers;
};
