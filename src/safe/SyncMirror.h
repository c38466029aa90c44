#pragma once

#include "SafeEnvironment.h"
#include "SafeFolder.h"
#include "WorkControl.h"

#include <QStringList>

/// Writes single changes of a safe through to its mirror. Each is written whole or not at all; the
/// first failure is logged, as a full disk fails every one.
class SyncMirror
{
public:
    SyncMirror(std::shared_ptr<FileLayer> files, SafeFolder safe, SafeFolder mirror);

    /// Makes the mirror's folders where they are not there.
    static bool enableSynchronization(FileLayer &files, const QString &mirrorFolder);

    struct Item
    {
        ItemFileName name;
        QString hash;           ///< of its file
        QString attachmentHash; ///< of the bytes of an attachment; empty for other items
    };
    /// Copies an item's file, and before it the bytes of an attachment where they are not there.
    bool commitNewOrChanged(const Item &item, const WorkControl &control);
    /// Removes files of the content folder with those of the same names in the attachment folder.
    bool commitDeleted(const QStringList &fileNames);
    bool commitMetaChange();
    bool commitPassIdChange();

private:
    bool isThere(const char *operation);
    bool commitAttachment(const Item &item, const WorkControl &control);
    bool fail(const char *operation, const char *message, const QString &path);

    std::shared_ptr<FileLayer> m_files;
    SafeFolder m_safe;
    SafeFolder m_mirror;
    bool m_hasFailed = false;
};
