#include "FormerPassword.h"

#include "ItemLoader.h"
#include "SafeCrypto.h"
#include "SafeLayout.h"

#include <QMap>
#include <QtConcurrent>

#include <algorithm>

namespace {

/// The names of the files of each item, the oldest first.
QMap<QString, QVector<ItemFileName>> generations(const SafeFolder &folder)
{
    QMap<QString, QVector<ItemFileName>> items;
    const QStringList names =
        itemFileNames(folder.path(SafeLayout::content)).value_or(QStringList());
    for (const QString &text : names) {
        const ItemFileName name = ItemFileName::parse(text);
        items[name.id].append(name);
    }
    for (QVector<ItemFileName> &each : items)
        std::sort(each.begin(), each.end(), [](const ItemFileName &a, const ItemFileName &b) {
            return a.generation < b.generation;
        });
    return items;
}

} // namespace

FormerPassword formerPassword(FileLayer &files, const SafeFolder &folder,
                              const QByteArray &password)
{
    const auto passId = files.read(folder.path(SafeLayout::passIdBackup));
    if (!passId || !checkPassId(password, QString::fromLatin1(*passId)))
        return FormerPassword::No;
    const auto items = generations(folder);
    const auto opens = [&](const QVector<ItemFileName> &names) {
        return std::any_of(names.begin(), names.end(), [&](const ItemFileName &name) {
            return readItemFile(files, folder.contentPath(name), password).has_value();
        });
    };
    // Items that have two files show it soonest; behind a change that was done no item opens.
    auto first = std::find_if(items.begin(), items.end(),
                              [](const QVector<ItemFileName> &names) { return names.size() > 1; });
    if (first == items.end())
        first = items.begin();
    if (first == items.end() || !opens(*first))
        return FormerPassword::Former;
    const QList<bool> opened = QtConcurrent::blockingMapped<QList<bool>>(
        items.values(), std::function<bool(const QVector<ItemFileName> &)>(opens));
    return opened.contains(false) ? FormerPassword::Former : FormerPassword::Interrupted;
}
