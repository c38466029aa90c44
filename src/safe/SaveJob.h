#pragma once

#include "ItemFile.h"
#include "SecretBytes.h"

#include <QDateTime>
#include <QMutex>
#include <QStringList>
#include <QVector>

#include <atomic>
#include <memory>

/// The changed items of a safe at one moment, to be written on any thread.
struct SaveJob
{
    struct Item
    {
        QString id;
        quint64 revision = 0;
        ItemFileName fileName;
        PMItemDocument document;
        QDateTime modified; ///< of the item
        QDateTime written;  ///< of the item as the disk has it; null when it was never written
    };

    SafeEnvironment environment;
    QString folder;
    std::shared_ptr<const SecretBytes> password;
    std::shared_ptr<QMutex> mutex; ///< held for each write
    QVector<Item> items;
    QByteArray description;                  ///< the safe's description with its new time of change
    std::shared_ptr<std::atomic<int>> steps; ///< counts what was written or has failed

    QString path(const Item &item) const;

    struct Result
    {
        QVector<Item> saved;     ///< without documents
        QStringList failedPaths; ///< of items, and of the description
        bool good() const { return failedPaths.isEmpty(); }
    };

    /// Writes every item, those behind a failing one too, then the description. Encrypts on the
    /// worker pool, and is not to be called from there.
    Result run() const;
};
