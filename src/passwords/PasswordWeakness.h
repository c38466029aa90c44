#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

/// What a guesser would take a password apart into.
enum class PasswordPart { Name, Word, Date, KeyRow, Sequence, Repeat, Digit, Digits, Other };

/// The parts of a password that is short enough to be weak, each kind once, in their order.
/// @param names words that belong to the item: its title, its user name, its site
QVector<PasswordPart> passwordParts(const QString &password, const QStringList &names);

/// The parts in translated words: "a word from a list and a digit". For parts that are nothing but
/// characters: that there are too few of them.
QString passwordPartsText(const QVector<PasswordPart> &parts);
