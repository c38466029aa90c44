#include "ItemLoader.h"

#include <QDir>
#include <QtConcurrent>

#include <algorithm>

namespace {

struct ReadItemFile
{
    using result_type = LoadedFile;

    LoadedFile operator()(const QString &fileName) const
    {
        return {ItemFileName::parse(fileName),
                readItemFile(*files, folder + QLatin1Char('/') + fileName, password->view())};
    }

    QString folder;
    std::shared_ptr<const SecretBytes> password;
    std::shared_ptr<FileLayer> files;
};

} // namespace

std::optional<QStringList> itemFileNames(const QString &contentFolder)
{
    const QDir folder(contentFolder);
    if (!folder.exists() || !folder.isReadable())
        return std::nullopt;
    QStringList names;
    const QStringList all = folder.entryList(QDir::Files, QDir::Name);
    for (const QString &name : all) {
        if (!isInterruptedWrite(name))
            names.append(name);
    }
    return names;
}

QFuture<LoadedFile> loadItemFiles(const QStringList &fileNames, const QString &contentFolder,
                                  std::shared_ptr<const SecretBytes> password,
                                  std::shared_ptr<FileLayer> files)
{
    return QtConcurrent::mapped(fileNames,
                                ReadItemFile{contentFolder, std::move(password), std::move(files)});
}

void LoadedItems::add(const LoadedFile &file)
{
    std::unique_ptr<PMListItem> item = file.document ? file.document->toItem() : nullptr;
    if (!item) {
        m_failed.append(file.name);
        return;
    }
    // The file's name rules: two files must never become one item unnoticed.
    item->setId(file.name.id);
    item->markSaved(item->revision());
    const QDateTime modified = item->modified();
    Entry &entry = m_entries[file.name.id];
    if (!entry.item || entry.name.generation < file.name.generation)
        entry = {file.name, std::move(item), modified, 0};
}

QStringList LoadedItems::unreadableFiles() const
{
    QStringList names;
    for (const ItemFileName &name : m_failed) {
        if (m_entries.find(name.id) == m_entries.end())
            names.append(name.text());
    }
    return names;
}

bool LoadedItems::looksInterrupted() const
{
    if (unreadableFiles().isEmpty())
        return false;
    return m_entries.empty() ||
           std::any_of(m_failed.begin(), m_failed.end(), [this](const ItemFileName &name) {
               const auto entry = m_entries.find(name.id);
               return entry != m_entries.end() && entry->second.name.generation > name.generation;
           });
}
