#pragma once

#include "ImportMatch.h"
#include "WorkerTask.h"

#include <memory>

/// What came of looking into a file that is to be imported.
struct ImportResult
{
    enum Fault {
        Good,
        Missing,
        NotAFile,
        Unreadable,
        TooLarge,
        Unknown ///< `file` says why
    };

    ~ImportResult();

    Fault fault = Good;
    ImportFile file;
    std::vector<ImportMatch> matches; ///< of each entry
};

/// Reads an export, and looks up what is there already, on a thread of its own.
class ImportReader : public WorkerTask
{
    Q_OBJECT

public:
    /// The largest file that is read, in bytes.
    static const qint64 largestFile = 52428800;

    /// @param known what the safe holds
    /// @param columns see readImportFile()
    ImportReader(const QString &path, const std::vector<ImportTraits> &known,
                 const ImportColumns &columns = {}, QObject *parent = nullptr);

    /// Valid once finished() is emitted; it wipes what it holds when the last one lets go of it.
    const std::shared_ptr<ImportResult> &result() const { return m_result; }

private:
    ImportReader(const QString &path, const std::vector<ImportTraits> &known,
                 const ImportColumns &columns, const std::shared_ptr<ImportResult> &result,
                 QObject *parent);

    std::shared_ptr<ImportResult> m_result;
};
