#pragma once

#include "PMItemDocument.h"
#include "SafeEnvironment.h"

#include <QByteArray>
#include <QString>

#include <optional>

/// Names and content of the files that hold one item each. A file's name is the item's id; each
/// change of password writes the next generation beside it: id, id.1, id.2 and so on.

struct ItemFileName
{
    QString id;
    int generation = 0;

    QString text() const;
    static ItemFileName parse(const QString &fileName);
};

/// Whether a name is that of a temporary file which an interrupted write left behind.
bool isInterruptedWrite(const QString &fileName);

/// Reads, decrypts and parses an item file; nothing when any of it fails.
std::optional<PMItemDocument> readItemFile(FileLayer &files, const QString &path,
                                           const QByteArray &password);

/// The text of an item's file; nothing when there are no random bytes.
std::optional<QByteArray> encryptItem(const SafeEnvironment &environment,
                                      const QByteArray &password, const PMItemDocument &document);

/// Encrypts and writes an item file; the former content stays when that fails.
bool writeItemFile(const SafeEnvironment &environment, const QString &path,
                   const QByteArray &password, const PMItemDocument &document);
