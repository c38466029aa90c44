#include "UiSettings.h"

#include <QMetaEnum>
#include <QScreen>
#include <QWidget>

namespace {

const QString lastUsedSafeKey = QStringLiteral("LastUsedSafe");
const QString lastFolderKey = QStringLiteral("LastFolderForOpenDialog");
const QString screenNumberKey = QStringLiteral("LastMainWindowScreenNumber");
const QString setUpDoneKey = QStringLiteral("SetUpDone");
const QString itemOrderKey = QStringLiteral("ItemOrder");
const QString updateVersionKey = QStringLiteral("LastUpdateVersionShow");
const QString updateCheckKey = QStringLiteral("LastUpdateCheck");
const QString geometrySuffix = QStringLiteral("_Geometry");
const QString splitterSuffix = QStringLiteral("_Splitter");
const QString tabIndexSuffix = QStringLiteral("_TabIndex");
const QString themeKey = QStringLiteral("Theme");
const QString textSizeKey = QStringLiteral("TextSize");
const QString motionOffKey = QStringLiteral("MotionOff");
const QString hiddenFromCaptureKey = QStringLiteral("HiddenFromCapture");
const QString lengthSuffix = QStringLiteral("_Length");
const QString specialCountSuffix = QStringLiteral("_SpecialCharsCount");

// A file that was changed by hand must not make the program unusable.
const int smallestTextPercent = 75;
const int greatestTextPercent = 200;

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

QString UiSettings::lastFolder() const
{
    return m_store.value(lastFolderKey).toString();
}

void UiSettings::setLastFolder(const QString &folder)
{
    m_store.setValue(lastFolderKey, folder);
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
    if (window.isMaximized() || window.isFullScreen())
        return;
    // With larger texts the window has become larger than it was when its place was kept.
    // Its shadow may reach beyond the screen.
    const QRect screen = window.screen()->availableGeometry();
    const QMargins shadow = window.contentsMargins();
    const QRect seen = QRect(window.pos(), window.size()).marginsRemoved(shadow);
    const int x = qMax(screen.left(), qMin(seen.left(), screen.right() + 1 - seen.width()));
    const int y = qMax(screen.top(), qMin(seen.top(), screen.bottom() + 1 - seen.height()));
    const QPoint place = QPoint(x, y) - QPoint(shadow.left(), shadow.top());
    if (place != window.pos())
        window.move(place);
}

void UiSettings::saveSplitter(const QString &windowName, const QByteArray &state)
{
    m_store.setValue(windowName + splitterSuffix, state);
}

QByteArray UiSettings::splitter(const QString &windowName) const
{
    return m_store.value(windowName + splitterSuffix).toByteArray();
}

int UiSettings::tabIndex(const QString &windowName) const
{
    return m_store.value(windowName + tabIndexSuffix, 0).toInt();
}

void UiSettings::setTabIndex(const QString &windowName, int index)
{
    m_store.setValue(windowName + tabIndexSuffix, index);
}

Theme::Mode UiSettings::themeMode() const
{
    const QString name = m_store.value(themeKey).toString();
    bool known = false;
    const int mode = QMetaEnum::fromType<Theme::Mode>().keyToValue(name.toLatin1(), &known);
    return known ? static_cast<Theme::Mode>(mode) : Theme::Mode::System;
}

void UiSettings::setThemeMode(Theme::Mode mode)
{
    const QMetaEnum names = QMetaEnum::fromType<Theme::Mode>();
    m_store.setValue(themeKey, QString::fromLatin1(names.valueToKey(static_cast<int>(mode))));
}

int UiSettings::textPercent() const
{
    const int percent = m_store.value(textSizeKey, 100).toInt();
    return percent >= smallestTextPercent && percent <= greatestTextPercent ? percent : 100;
}

void UiSettings::setTextPercent(int percent)
{
    m_store.setValue(textSizeKey, percent);
}

bool UiSettings::motionOff() const
{
    return m_store.value(motionOffKey, false).toBool();
}

void UiSettings::setMotionOff(bool off)
{
    m_store.setValue(motionOffKey, off);
}

bool UiSettings::hiddenFromCapture() const
{
    return m_store.value(hiddenFromCaptureKey, true).toBool();
}

void UiSettings::setHiddenFromCapture(bool hidden)
{
    m_store.setValue(hiddenFromCaptureKey, hidden);
}

bool UiSettings::store()
{
    m_store.sync();
    return m_store.status() == QSettings::NoError;
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

bool UiSettings::setUpDone() const
{
    return m_store.value(setUpDoneKey, false).toBool();
}

void UiSettings::setSetUpDone(bool done)
{
    m_store.setValue(setUpDoneKey, done);
}

QString UiSettings::lastUpdateVersionShow() const
{
    return m_store.value(updateVersionKey).toString();
}

void UiSettings::setLastUpdateVersionShow(const QString &version)
{
    m_store.setValue(updateVersionKey, version);
}

QDateTime UiSettings::lastUpdateCheck() const
{
    return QDateTime::fromString(m_store.value(updateCheckKey).toString(), Qt::ISODate);
}

void UiSettings::setLastUpdateCheck(const QDateTime &moment)
{
    m_store.setValue(updateCheckKey, moment.toUTC().toString(Qt::ISODate));
}

void UiSettings::forgetWindows()
{
    const QStringList keys = m_store.allKeys();
    for (const QString &key : keys) {
        if (key.endsWith(geometrySuffix) || key.endsWith(splitterSuffix))
            m_store.remove(key);
    }
}
