#include "LinkSettings.h"

#include "ExtensionOrigins.h"
#include "OwnerOnlyFile.h"

#include <QDebug>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

const QLatin1String originsKey("approved_origins");
const QLatin1String iconsKey("site_icons");

} // namespace

LinkSettings::LinkSettings(const QString &filePath)
    : m_filePath(filePath)
{
    QFile file(filePath);
    if (!file.open(QIODevice::ReadOnly))
        return;
    const QJsonObject object = QJsonDocument::fromJson(file.readAll()).object();
    const QJsonArray origins = object.value(originsKey).toArray();
    for (const QJsonValue &origin : origins) {
        if (originTrust(origin.toString()) == OriginTrust::ToBeApproved)
            m_approvedOrigins.append(origin.toString());
    }
    m_siteIcons = object.value(iconsKey).toBool(true);
}

bool LinkSettings::setApprovedOrigins(const QStringList &origins)
{
    m_approvedOrigins = origins;
    return store();
}

bool LinkSettings::setSiteIcons(bool on)
{
    m_siteIcons = on;
    return store();
}

bool LinkSettings::store() const
{
    const QJsonObject object{{originsKey, QJsonArray::fromStringList(m_approvedOrigins)},
                             {iconsKey, m_siteIcons}};
    const bool stored = makeOwnerOnlyFolder(QFileInfo(m_filePath).path()) &&
                        writeOwnerOnlyFile(m_filePath, QJsonDocument(object).toJson());
    if (!stored)
        qWarning() << "LinkSettings::store"
                   << "Can't store the settings of the browser link:" << m_filePath;
    return stored;
}
