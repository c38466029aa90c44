#include "Style.h"

#include "Palette.h"

#include <QFile>
#include <QFontDatabase>
#include <QString>

namespace {

void replaceColors(QString &sheet, const Palette &palette, const QString &prefix)
{
    for (int role = 0; role < Palette::RoleCount; ++role) {
        const auto known = static_cast<Palette::Role>(role);
        sheet.replace(
            QStringLiteral("${%1%2}").arg(prefix, QLatin1String(Palette::roleName(known))),
            palette.color(known).name());
    }
}

} // namespace

int Style::basePointSize()
{
    return 10;
}

void Style::registerFonts()
{
    for (const char *name : {"SG-M.TTF", "SG-SB.TTF", "SG-B.TTF"})
        QFontDatabase::addApplicationFont(QStringLiteral(":/fonts/") + QLatin1String(name));
}

QString Style::styleSheet(const Palette &palette)
{
    QFile file(QStringLiteral(":/style/glaceron.qss"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QString sheet = QString::fromUtf8(file.readAll());
    replaceColors(sheet, palette, {});
    // The lock pages are dark in both sets.
    replaceColors(sheet, Palette::dark(), QStringLiteral("lock."));
    return sheet;
}
