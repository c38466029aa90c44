#include "CloudTexts.h"

#include "main/RelativeDate.h"

#include <QDir>

using State = CloudStatus::State;

QString CloudTexts::word(const CloudStatus &status)
{
    switch (status.state) {
    case State::Off:
    case State::On:
        return {};
    case State::Synchronised:
        return tr("Synchronised");
    case State::Running:
        return tr("Synchronising…");
    case State::Waiting:
        return tr("Waiting for files");
    case State::Busy:
        return tr("Waiting…");
    case State::NewPasswordNeeded:
        return tr("New password");
    case State::FolderMissing:
        return tr("No cloud folder");
    case State::OtherSafe:
        return tr("Wrong folder");
    case State::FolderNotWritten:
    case State::SafeNotWritten:
        return tr("Can't synchronise");
    }
    return {};
}

QString CloudTexts::icon(const CloudStatus &status)
{
    if (status.needsAttention())
        return QStringLiteral("alert-triangle");
    if (status.state == State::Running)
        return QStringLiteral("refresh");
    if (status.state == State::Waiting || status.state == State::Busy)
        return QStringLiteral("cloud-down");
    return status.isOn() ? QStringLiteral("cloud-check") : QStringLiteral("cloud");
}

QString CloudTexts::line(const CloudStatus &status, const QDateTime &now)
{
    switch (status.state) {
    case State::Off:
        return {};
    case State::On:
    case State::Synchronised:
        return status.last.isValid() ? tr("Synchronised %1").arg(relativeMoment(status.last, now))
                                     : tr("Synchronises when the safe is open");
    case State::Running:
        return status.total > 0 ? tr("Synchronising, %1 of %2").arg(status.done).arg(status.total)
                                : tr("Synchronising…");
    case State::Waiting:
        return status.waiting.isEmpty()
                   ? tr("Waiting for files to arrive")
                   : tr("Waiting for %n files to arrive", nullptr, status.waiting.size());
    case State::Busy:
        return tr("Waits until the safe is free");
    case State::NewPasswordNeeded:
        return tr("The password was changed on another computer");
    case State::FolderMissing:
        return tr("The cloud folder is not there");
    case State::OtherSafe:
        return tr("The cloud folder holds another safe");
    case State::FolderNotWritten:
        return tr("The cloud folder can't be written to");
    case State::SafeNotWritten:
        return tr("The folder of the safe can't be written to");
    }
    return {};
}

QString CloudTexts::advice(const CloudStatus &status)
{
    const QString folder = QDir::toNativeSeparators(status.mirrorFolder);
    switch (status.state) {
    case State::Off:
    case State::On:
    case State::Synchronised:
    case State::Running:
        return {};
    case State::Waiting:
        return status.waiting.isEmpty()
                   ? tr("It goes on by itself once your cloud program has brought them.")
                   : tr("It goes on by itself once your cloud program has brought them: %1")
                         .arg(status.waiting.mid(0, 5).join(QStringLiteral(", ")));
    case State::Busy:
        return tr("The safe is being archived, or its password is being changed.");
    case State::NewPasswordNeeded:
        return tr("Enter the new password, and this computer goes on with it.");
    case State::FolderMissing:
        return tr("If it is on a drive that can be taken out, connect the drive. If it was moved, "
                  "turn synchronising off and on again. Nothing is lost in the meantime.\n%1")
            .arg(folder);
    case State::OtherSafe:
        return tr("Nothing was read or changed there. Turn synchronising off and on again to "
                  "choose another folder.\n%1")
            .arg(folder);
    case State::FolderNotWritten:
        return tr("Your changes are in the safe on this computer, but not in the cloud folder. "
                  "Check the free space and that you may write there; it is tried again every "
                  "minute.\n%1")
            .arg(folder);
    case State::SafeNotWritten:
        return tr("Changes of your other computers could not be taken over. Check the free space "
                  "and that you may write to the folder of the safe; it is tried again every "
                  "minute.");
    }
    return {};
}

QString CloudTexts::fault(const MirrorChoice &choice, const QString &sharedFolder)
{
    const QString folder = QDir::toNativeSeparators(sharedFolder);
    using Fault = MirrorChoice::Fault;
    switch (choice.fault) {
    case Fault::None:
        return {};
    case Fault::NotThere:
        return tr("This folder is not there: %1").arg(folder);
    case Fault::InsideSafe:
        return tr("This folder is part of the safe itself. Choose the folder of your cloud "
                  "provider, or one on another drive.");
    case Fault::AroundSafe:
        return tr("The safe itself lies in this folder. Choose a folder that does not hold it.");
    case Fault::InBackups:
        return tr("Your backups are kept in this folder. Choose another one.");
    case Fault::OtherSafe:
        return choice.otherName.isEmpty()
                   ? tr("This folder belongs to another safe. Choose another one.")
                   : tr("This folder belongs to the safe “%1”. Choose another one.")
                         .arg(choice.otherName);
    case Fault::Taken:
        return tr("Another copy of this safe on this computer is synchronised there already. Turn "
                  "that off first, or choose another folder.");
    case Fault::NotWritable:
        return tr("This folder can't be written to. Check the free space and that you may write "
                  "there: %1")
            .arg(folder);
    }
    return {};
}

QString CloudTexts::fault(CloudSync::Taking result)
{
    switch (result) {
    case CloudSync::Taking::Taken:
    case CloudSync::Taking::NotNeeded:
        return {};
    case CloudSync::Taking::Wrong:
        return tr("This is not the password that was set on the other computer. Try again.");
    case CloudSync::Taking::Busy:
        return tr("The safe is busy with something else, such as a backup. Try again in a moment.");
    case CloudSync::Taking::NotChanged:
        return tr("The safe on this computer could not be changed; it is as it was. Check the free "
                  "space, and that every item of the safe can be read, then try again.");
    }
    return {};
}

QString CloudTexts::importFault(ArchiveResult::Outcome outcome)
{
    using Outcome = ArchiveResult::Outcome;
    switch (outcome) {
    case Outcome::Done:
    case Outcome::Cancelled:
        return {};
    case Outcome::CannotWrite:
        return tr("The safe can't be written. Check the free space and that you may write to the "
                  "folder of your safes.");
    case Outcome::SafeBusy:
        return tr("Another safe is being imported. Try again when that is done.");
    default:
        return tr("The safe in the cloud folder can't be read. It may not have arrived whole yet; "
                  "wait until your cloud program is done, and try again.");
    }
}

QString CloudTexts::news(int received, int removed)
{
    if (received == 1)
        return tr("One item came from the cloud folder");
    if (received > 1)
        return tr("%n items came from the cloud folder", nullptr, received);
    return removed == 1 ? tr("One item was deleted on another computer")
                        : tr("%n items were deleted on another computer", nullptr, removed);
}
