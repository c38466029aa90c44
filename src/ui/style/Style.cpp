#include "Style.h"

#include "Palette.h"

#include <QFile>
#include <QFontDatabase>
#include <QHash>
#include <QRegularExpression>
#include <QString>

namespace {

struct Measures
{
    int controlHeight = 34;
    int textSize = 13;
    int smallTextSize = 12;
    int titleSize = 20;
    int iconSize = 18;
};

const Measures usualMeasures;
Measures measures;
int percent = 100;

void replaceColors(QString &sheet, const Palette &palette, const QString &prefix)
{
    for (int role = 0; role < Palette::RoleCount; ++role) {
        const auto known = static_cast<Palette::Role>(role);
        sheet.replace(
            QStringLiteral("${%1%2}").arg(prefix, QLatin1String(Palette::roleName(known))),
            palette.color(known).name());
    }
}

QString scalePixels(const QString &values, int smallest)
{
    static const QRegularExpression pixels(QStringLiteral("\\b(\\d+)px"));
    QString result;
    int end = 0;
    for (auto it = pixels.globalMatch(values); it.hasNext();) {
        const QRegularExpressionMatch number = it.next();
        const int value = number.captured(1).toInt();
        result += values.midRef(end, number.capturedStart() - end);
        result += QStringLiteral("%1px").arg(value < smallest ? value : Style::scaled(value));
        end = number.capturedEnd();
    }
    return result + values.midRef(end);
}

/// Lets grow with the texts: their own sizes, the heights of controls but not those of lines, and
/// the paddings that make room for icons but not the usual ones.
QString scaleSheet(const QString &sheet)
{
    static const QRegularExpression properties(QStringLiteral(
        "\\b(font-size|min-height|max-height|padding|padding-left|padding-right): [^;]*;"));
    static const QHash<QString, int> smallest = {{QStringLiteral("font-size"), 1},
                                                 {QStringLiteral("min-height"), 10},
                                                 {QStringLiteral("max-height"), 10}};
    const int smallestPadding = 30;
    QString result;
    int end = 0;
    for (auto it = properties.globalMatch(sheet); it.hasNext();) {
        const QRegularExpressionMatch property = it.next();
        result += sheet.midRef(end, property.capturedStart() - end);
        result +=
            scalePixels(property.captured(), smallest.value(property.captured(1), smallestPadding));
        end = property.capturedEnd();
    }
    return result + sheet.midRef(end);
}

} // namespace

const int &Style::controlHeight = measures.controlHeight;
const int &Style::textSize = measures.textSize;
const int &Style::smallTextSize = measures.smallTextSize;
const int &Style::titleSize = measures.titleSize;
const int &Style::iconSize = measures.iconSize;

int Style::textPercent()
{
    return percent;
}

void Style::setTextPercent(int newPercent)
{
    percent = newPercent;
    measures = {scaled(usualMeasures.controlHeight), scaled(usualMeasures.textSize),
                scaled(usualMeasures.smallTextSize), scaled(usualMeasures.titleSize),
                scaled(usualMeasures.iconSize)};
}

int Style::scaled(int pixels)
{
    return qRound(pixels * percent / 100.0);
}

int Style::basePointSize()
{
    return scaled(10);
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
    return percent == 100 ? sheet : scaleSheet(sheet);
}
