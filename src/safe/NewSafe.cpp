#include "NewSafe.h"

#include "OwnerOnlyFile.h"
#include "SafeCrypto.h"
#include "SafeDescriptionFile.h"
#include "SafeLayout.h"

#include <QDir>

#include <utility>

bool writeNewSafe(const SafeEnvironment &environment, const SafeFolder &folder,
                  const SafeDescription &description, const QByteArray &password)
{
    FileLayer &files = *environment.files;
    QStringList madeFolders;
    bool good = true;
    for (const char *name : {SafeLayout::content, SafeLayout::attachment, SafeLayout::favicon}) {
        if (QDir(folder.path(name)).exists())
            continue;
        good = good && makeOwnerOnlyFolder(folder.path(name));
        madeFolders.append(folder.path(name));
    }
    const QString passId = makePassId(password, environment.random);
    good = good && !passId.isEmpty() &&
           files.writeBytes(folder.path(SafeLayout::passId), passId.toLatin1()) &&
           writeDescription(files, folder.root(), description.toJson());
    if (good)
        return true;

    for (const char *name : {SafeLayout::meta, SafeLayout::restore, SafeLayout::passId})
        files.remove(folder.path(name));
    for (const QString &made : std::as_const(madeFolders))
        QDir().rmdir(made);
    return false;
}
