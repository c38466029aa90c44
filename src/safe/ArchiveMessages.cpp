#include "ArchiveMessages.h"

#include <QCoreApplication>

namespace {

using Outcome = ArchiveResult::Outcome;

struct Message
{
    Outcome outcome;
    const char *text;
};

template <std::size_t count>
QString textOf(const Message (&messages)[count], const char *context, Outcome outcome)
{
    for (const Message &message : messages) {
        if (message.outcome == outcome)
            return QCoreApplication::translate(context, message.text);
    }
    return {};
}

} // namespace

QString exportMessage(Outcome outcome)
{
    static const Message messages[] = {
        {Outcome::NotFound,
         QT_TRANSLATE_NOOP("Export",
                           "The folder of the safe is not there. If it is on a drive that "
                           "can be taken out, connect it and try again.")},
        {Outcome::NoSafe, QT_TRANSLATE_NOOP("Export", "There is no safe in the folder any more.")},
        {Outcome::SafeBusy,
         QT_TRANSLATE_NOOP("Export", "The password of the safe is being changed, or it is being "
                                     "archived already. Try again when that is done.")},
        {Outcome::SafeUnreadable,
         QT_TRANSLATE_NOOP("Export",
                           "Some of the safe's files can't be read. Check that its folder "
                           "is there and that you may read and write it.")},
        {Outcome::CannotWrite,
         QT_TRANSLATE_NOOP("Export", "The archive can't be written. Check the free space and that "
                                     "you may write to its folder, or choose another one.")},
        {Outcome::TooLarge,
         QT_TRANSLATE_NOOP("Export", "The safe holds more than the 4 GiB that fit into an archive. "
                                     "Copy its folder instead, or take out large attachments.")},
        {Outcome::Damaged,
         QT_TRANSLATE_NOOP("Export", "The archive could not be read back after it was written, and "
                                     "was removed. Choose a folder on another drive.")},
    };
    return textOf(messages, "Export", outcome);
}

QString importMessage(Outcome outcome)
{
    static const Message messages[] = {
        {Outcome::NotFound, QT_TRANSLATE_NOOP("Import", "The file is not there or can't be read.")},
        {Outcome::SafeBusy,
         QT_TRANSLATE_NOOP("Import",
                           "Another safe is being imported. Try again when that is done.")},
        {Outcome::CannotWrite,
         QT_TRANSLATE_NOOP("Import", "The safe can't be written. Check the free space and that you "
                                     "may write to the folder of your safes.")},
        {Outcome::TooLarge,
         QT_TRANSLATE_NOOP("Import", "The file would unpack to more than 4 GiB, or to a hundred "
                                     "times its size. No safe does that, so it was not imported.")},
        {Outcome::NotAnArchive,
         QT_TRANSLATE_NOOP("Import", "This file is not an archive. Choose a file that was exported "
                                     "or backed up from a safe.")},
        {Outcome::Damaged,
         QT_TRANSLATE_NOOP("Import", "The file is damaged or was cut short. Copy it again from "
                                     "where it came from, or choose another backup.")},
        {Outcome::Unsupported,
         QT_TRANSLATE_NOOP("Import", "The archive has a password of its own or is packed in a way "
                                     "that can't be read. Pack it again as a plain ZIP file.")},
        {Outcome::UnsafeEntry,
         QT_TRANSLATE_NOOP("Import", "The archive holds a file that would be written outside the "
                                     "safe. Somebody may have tampered with it.")},
        {Outcome::NameTwice,
         QT_TRANSLATE_NOOP("Import", "The archive holds two files of the same name. Somebody may "
                                     "have tampered with it.")},
        {Outcome::NoSafe,
         QT_TRANSLATE_NOOP("Import", "There is no safe in this archive. Choose a file that was "
                                     "exported or backed up from a safe.")},
    };
    return textOf(messages, "Import", outcome);
}
