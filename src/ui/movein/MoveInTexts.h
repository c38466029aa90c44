#pragma once

#include "ImportReader.h"

#include <QStringList>
#include <QVector>

/// The words about exports of other programs.
namespace MoveInTexts {

/// How an export is made with one program.
struct Guide
{
    QString program;
    QStringList steps;
};
QVector<Guide> guides();

/// "recognised as an export of Firefox".
QString recognised(ImportFile::Format format);

/// What happened and what to do, where nothing could be read.
QString problem(const ImportResult &result);

/// "Not a web address"; empty where there is none.
QString fault(ImportEntry::Fault fault);

/// "Already there"; empty where an entry is new and nothing has to be said of it.
QString remark(const ImportEntry &entry, ImportMatch match);
/// The same with what comes of it.
QString advice(const ImportEntry &entry, ImportMatch match);

/// An address without what may be secret in it.
QString shownAddress(const QString &address);

/// "Row 57"; what has no rows has entries.
QString place(const ImportFile &file, const ImportEntry &entry);
/// "(row 57)", where an entry has no name.
QString standIn(const ImportFile &file, const ImportEntry &entry);

} // namespace MoveInTexts
