#include "MoveInTexts.h"

#include "widgets/SizeText.h"

#include <QCoreApplication>

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(MoveInTexts)
};

QString programName(ImportFile::Format format)
{
    switch (format) {
    case ImportFile::Firefox:
        return QStringLiteral("Firefox");
    case ImportFile::Safari:
        return QStringLiteral("Safari");
    case ImportFile::Bitwarden:
    case ImportFile::BitwardenJson:
        return QStringLiteral("Bitwarden");
    case ImportFile::KeePassXC:
        return QStringLiteral("KeePassXC");
    case ImportFile::OwnJson:
        return QStringLiteral("Glaceron Password Manager");
    case ImportFile::Chromium:
    case ImportFile::ChosenColumns:
    case ImportFile::Unknown:
        break;
    }
    return {};
}

QString unknownProblem(ImportFile::Problem problem)
{
    switch (problem) {
    case ImportFile::Empty:
        return Texts::tr("The file is empty. Export the passwords again, and choose the new file.");
    case ImportFile::NotText:
        return Texts::tr("The file holds no text that could be read. Export the passwords as CSV "
                         "or JSON, and choose that file.");
    case ImportFile::CutShort:
        return Texts::tr("The file ends in the middle of a text. Export the passwords again, and "
                         "choose the new file.");
    case ImportFile::Encrypted:
        return Texts::tr("The file is encrypted. Export again as JSON or CSV without encryption, "
                         "and delete that file afterwards.");
    case ImportFile::UnknownJson:
        return Texts::tr("This is no export that the program knows. It reads the JSON files of "
                         "Bitwarden and its own, and CSV files of browsers and other programs.");
    case ImportFile::UnknownColumns:
    case ImportFile::None:
        break;
    }
    return Texts::tr("The names of the columns are not known. Say what each column holds.");
}

} // namespace

QVector<MoveInTexts::Guide> MoveInTexts::guides()
{
    const QString saveIt = Texts::tr("Save the file where you find it again.");
    return {
        {QStringLiteral("Chrome"),
         {Texts::tr("Type %1 into the address bar.")
              .arg(QStringLiteral("chrome://password-manager/settings")),
          Texts::tr("Beside “Export passwords” press “Download file”."), saveIt}},
        {QStringLiteral("Edge"),
         {Texts::tr("Type %1 into the address bar.")
              .arg(QStringLiteral("edge://settings/passwords")),
          Texts::tr("Press the three dots above the list and choose “Export passwords”."), saveIt}},
        {QStringLiteral("Firefox"),
         {Texts::tr("Type %1 into the address bar.").arg(QStringLiteral("about:logins")),
          Texts::tr("Press the three dots in the corner and choose “Export passwords…”."), saveIt}},
        {QStringLiteral("Safari"),
         {Texts::tr("On the Mac open the program “Passwords”, or Safari on older systems."),
          Texts::tr("In the menu “File” choose to export all passwords to a file."),
          Texts::tr("Bring the file to this computer.")}},
        {QStringLiteral("Bitwarden"),
         {Texts::tr("Choose “Export vault”: under “Tools” in the web vault, in the menu “File” of "
                    "the program."),
          Texts::tr("Choose “.json”, which holds cards and identities too, and no encryption."),
          saveIt}},
        {QStringLiteral("KeePassXC"),
         {Texts::tr("Open the database."),
          Texts::tr("In the menu “Database” choose “Export”, then “CSV file…”."), saveIt}},
        {Texts::tr("Another safe"),
         {Texts::tr("Open the other safe in this program."),
          Texts::tr("In the menu of the safe choose “Export items…”, then JSON."), saveIt}},
        {Texts::tr("Another program"),
         {Texts::tr("Export the passwords as CSV, with the names of the columns in the first row."),
          Texts::tr("Choose the file here. You are asked what each column holds, if that is not "
                    "known.")}},
    };
}

QString MoveInTexts::recognised(ImportFile::Format format)
{
    if (format == ImportFile::Chromium)
        return Texts::tr("recognised as an export of a browser");
    if (format == ImportFile::ChosenColumns)
        return Texts::tr("read by the columns that you chose");
    return Texts::tr("recognised as an export of %1").arg(programName(format));
}

QString MoveInTexts::problem(const ImportResult &result)
{
    switch (result.fault) {
    case ImportResult::Good:
        return Texts::tr("There are no rows below the names of the columns. Export the passwords "
                         "again, and choose the new file.");
    case ImportResult::Missing:
        return Texts::tr("The file is no longer there. Choose it again.");
    case ImportResult::NotAFile:
        return Texts::tr("This is no file. Choose the exported file itself.");
    case ImportResult::Unreadable:
        return Texts::tr("The file cannot be read. Close the program that has it open, or copy it "
                         "to another folder.");
    case ImportResult::TooLarge:
        return Texts::tr("The file is larger than %1, which no export of passwords is. Check that "
                         "it is the right one.")
            .arg(SizeText::of(ImportReader::largestFile));
    case ImportResult::Unknown:
        break;
    }
    return unknownProblem(result.file.problem);
}

QString MoveInTexts::fault(ImportEntry::Fault fault)
{
    switch (fault) {
    case ImportEntry::NotAWebAddress:
        return Texts::tr("Not a web address");
    case ImportEntry::Empty:
        return Texts::tr("Nothing in it");
    case ImportEntry::UnknownKind:
        return Texts::tr("Unknown kind");
    case ImportEntry::WrongColumns:
        return Texts::tr("Wrong number of columns");
    case ImportEntry::None:
        break;
    }
    return {};
}

QString MoveInTexts::remark(const ImportEntry &entry, ImportMatch match)
{
    switch (match) {
    case ImportMatch::AlreadyThere:
        return Texts::tr("Already there");
    case ImportMatch::OtherPassword:
        return Texts::tr("Other password");
    case ImportMatch::OtherNote:
        return Texts::tr("Other note");
    case ImportMatch::New:
        break;
    }
    return entry.addressInNote ? Texts::tr("Without address") : QString();
}

QString MoveInTexts::advice(const ImportEntry &entry, ImportMatch match)
{
    switch (match) {
    case ImportMatch::AlreadyThere:
        return Texts::tr("It is in the safe, or further up in the file.");
    case ImportMatch::OtherPassword:
        return Texts::tr("There is a login of the same site and user name with another password. "
                         "Both will be there.");
    case ImportMatch::OtherNote:
        return Texts::tr("There is such an item with another note. Both will be there.");
    case ImportMatch::New:
        break;
    }
    return entry.addressInNote
               ? Texts::tr("Its address belongs to an app or a file, and goes to the note.")
               : QString();
}

QString MoveInTexts::shownAddress(const QString &address)
{
    const int scheme = address.indexOf(QLatin1String("://"));
    const int host = scheme < 0 ? 0 : scheme + 3;
    QString shown = address;
    for (const char mark : {'#', '?'}) {
        const int at = shown.indexOf(QLatin1Char(mark), host);
        if (at >= 0)
            shown.truncate(at);
    }
    const int path = shown.indexOf(QLatin1Char('/'), host);
    const int user = shown.lastIndexOf(QLatin1Char('@'), path < 0 ? -1 : path);
    if (user >= host)
        shown.remove(host, user - host + 1);
    if (shown.endsWith(QLatin1Char('/')) && shown.size() > host)
        shown.chop(1);
    return shown;
}

QString MoveInTexts::place(const ImportFile &file, const ImportEntry &entry)
{
    return (file.isJson() ? Texts::tr("Entry %1") : Texts::tr("Row %1")).arg(entry.number);
}

QString MoveInTexts::standIn(const ImportFile &file, const ImportEntry &entry)
{
    return (file.isJson() ? Texts::tr("(entry %1)") : Texts::tr("(row %1)")).arg(entry.number);
}
