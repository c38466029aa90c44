#include "FileNames.h"

#include <QRegularExpression>
#include <QSet>

namespace {

// What the usual file systems take, with room for the number that a second copy gets.
const int largestNameBytes = 200;
const int largestEnding = 20;

bool isVisible(const QChar &character)
{
    switch (character.category()) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Other_NotAssigned:
    case QChar::Other_PrivateUse:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return false;
    default:
        return true;
    }
}

/// Cuts the name in front of its ending.
QString shortened(const QString &name)
{
    const int dot = name.lastIndexOf(QLatin1Char('.'));
    const bool hasEnding = dot > 0 && name.size() - dot <= largestEnding;
    const QString ending = hasEnding ? name.mid(dot) : QString();
    QString front = hasEnding ? name.left(dot) : name;
    const int room = largestNameBytes - ending.toUtf8().size();
    while (front.toUtf8().size() > room)
        front.chop(QChar(front.back()).isLowSurrogate() ? 2 : 1);
    return front + ending;
}

} // namespace

QString cleanFileName(const QString &name)
{
    static const QRegularExpression reserved(
        QStringLiteral("^(con|prn|aux|nul|com[0-9]|lpt[0-9])(\\..*)?$"),
        QRegularExpression::CaseInsensitiveOption);
    const QString separators = QStringLiteral("/\\");
    const QString forbidden = QStringLiteral("<>:\"|?*");
    QString clean;
    for (int i = 0; i < name.size(); ++i) {
        const QChar character = name.at(i);
        const bool isPair =
            character.isHighSurrogate() && i + 1 < name.size() && name.at(i + 1).isLowSurrogate();
        if (isPair) {
            clean += name.mid(i++, 2);
        } else if (separators.contains(character)) {
            clean.clear();
        } else if (forbidden.contains(character)) {
            clean += QLatin1Char('_');
        } else if (isVisible(character) && !character.isSurrogate()) {
            clean += character;
        }
    }
    clean = shortened(clean.trimmed());
    // Windows drops these without a word, which would change the ending.
    while (clean.endsWith(QLatin1Char('.')) || clean.endsWith(QLatin1Char(' ')))
        clean.chop(1);
    if (clean.isEmpty())
        return QStringLiteral("attachment");
    return reserved.match(clean).hasMatch() ? QLatin1Char('_') + clean : clean;
}

bool isRiskyFileName(const QString &name)
{
    static const QSet<QString> endings = [] {
        const QString list = QStringLiteral(
            "action app appimage appref-ms application apk bash bat bin cab chm cmd com command "
            "cpl csh deb desktop diagcab dll dmg docm dotm elf exe fish flatpakref gadget hta htm "
            "html img inf ins iso jar job jnlp js jse ksh lnk mde mht mhtml msc msh msi msix msp "
            "mst ocx out pif pkg pl potm ppam ppsm pptm prg ps1 ps1xml ps2 psc1 psd1 psm1 py pyc "
            "pyw rb reg rpm run scf scr scpt service settingcontent-ms sh shb shs sldm snap svg "
            "svgz sys tcsh terminal tool url vb vbe vbs vhd vhdx webloc workflow ws wsc wsf wsh "
            "xbap xhtml xlam xll xlsb xlsm xltm zsh");
        const QStringList names = list.split(QLatin1Char(' '));
        return QSet<QString>(names.begin(), names.end());
    }();
    const QString clean = cleanFileName(name);
    const int dot = clean.lastIndexOf(QLatin1Char('.'));
    return dot >= 0 && endings.contains(clean.mid(dot + 1).toLower());
}
