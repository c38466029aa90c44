#include "SystemLook.h"

#include <QApplication>
#include <QPalette>
#include <QSettings>
#include <QStyle>

bool SystemLook::isDark()
{
#ifdef Q_OS_WIN
    // Qt's own palette stays light on Windows whatever the user chose there.
    const QSettings personal(
        QStringLiteral("HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Themes\\"
                       "Personalize"),
        QSettings::NativeFormat);
    return personal.value(QStringLiteral("AppsUseLightTheme"), 1).toInt() == 0;
#else
    const QPalette palette = QApplication::palette();
    return palette.color(QPalette::Window).lightness() <
           palette.color(QPalette::WindowText).lightness();
#endif
}

bool SystemLook::wantsReducedMotion()
{
    const QStyle *style = QApplication::style();
    return style->styleHint(QStyle::SH_Widget_Animation_Duration) == 0;
}
