#include "NewSafe.h"

#include "OwnerOnlyFile.h"
#include "SafeCrypto.h"
#include "SafeDescriptionFile.h"
#include "SafeLayout.h"

#include <QDebug>
#include <QDir>

#include <utility>

static const char operation[] = "GPMSafe::init";

bool canHoldNewSafe(const SafeFolder &folder, const QString &password)
{
    if (!QDir(folder.root()).exists()) {
        qWarning() << operation << "Directory not found:" << folder.root();
        return false;
    }
    if (folder.holdsSafe()) {
        qWarning() << operation << "There is a safe already at:" << folder.root();
        return false;
    }
    if (password.isEmpty()) {
        qWarning() << operation << "Invalid password data";
        return false;
    }
    return true;
}

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
