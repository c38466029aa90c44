#include "UiSettings.h"

#include <QWidget>

namespace {

const QString lastUsedSafeKey = QStringLiteral("LastUsedSafe");
const QString screenNumberKey = QStringLiteral("LastMainWindowScreenNumber");
const QString itemOrderKey = QStringLiteral("ItemOrder");
const QString geometrySuffix = QStringLiteral("_Geometry");
const QString splitterSuffix = QStringLiteral("_Splitter");
const QString lengthSuffix = QStringLiteral("_Length");
const QString specialCountSuffix = QStringLiteral("_SpecialCharsCount");

} // namespace

UiSettings::UiSettings(const QString &folder)
    : m_store(folder + QStringLiteral("/uisettings.ini"), QSettings::IniFormat)
{
}

QString UiSettings::lastUsedSafe() const
{
    return m_store.value(lastUsedSafeKey).toString();
}

void UiSettings::setLastUsedSafe(const QString &folder)
{
    m_store.setValue(lastUsedSafeKey, folder);
}

int UiSettings::mainWindowScreenNumber() const
{
    return m_store.value(screenNumberKey, 0).toInt();
}

void UiSettings::setMainWindowScreenNumber(int number)
{
    m_store.setValue(screenNumberKey, number);
}

void UiSettings::saveGeometry(const QWidget &window)
{
    m_store.setValue(window.objectName() + geometrySuffix, window.saveGeometry());
}

void UiSettings::restoreGeometry(QWidget &window) const
{
    window.restoreGeometry(m_store.value(window.objectName() + geometrySuffix).toByteArray());
}

void UiSettings::saveSplitter(const QString &windowName, const QByteArray &state)
{
    m_store.setValue(windowName + splitterSuffix, state);
}

QByteArray UiSettings::splitter(const QString &windowName) const
{
    return m_store.value(windowName + splitterSuffix).toByteArray();
}

UiSettings::PasswordShape UiSettings::passwordShape(const QString &windowName) const
{
    const PasswordShape usual;
    return {m_store.value(windowName + lengthSuffix, usual.length).toInt(),
            m_store.value(windowName + specialCountSuffix, usual.specialCount).toInt()};
}

void UiSettings::setPasswordShape(const QString &windowName, const PasswordShape &shape)
{
    m_store.setValue(windowName + lengthSuffix, shape.length);
    m_store.setValue(windowName + specialCountSuffix, shape.specialCount);
}

QString UiSettings::itemOrder() const
{
    return m_store.value(itemOrderKey).toString();
}

void UiSettings::setItemOrder(const QString &name)
{
    m_store.setValue(itemOrderKey, name);
}

void UiSettings::forgetWindows()
{
    const QStringList keys = m_store.allKeys();
    for (const QString &key : keys) {
        if (key.endsWith(geometrySuffix) || key.endsWith(splitterSuffix))
            m_store.remove(key);
    }
}
