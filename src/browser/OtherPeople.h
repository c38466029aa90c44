#pragma once

#include "FieldKind.h"
#include "FieldReading.h"
#include "FormField.h"

#include <QVector>

/// Leaves what is asked for of somebody else: of a spouse or a second passenger, by the heading,
/// and of whoever receives something, where the user's own is asked for as well.
void leaveOtherPeople(const QVector<FormField> &fields, const QVector<FieldReading> &readings,
                      QVector<FieldKind> &kinds);

/// Leaves the second of people whose fields the page's code numbers alike, and who come after.
void leaveNumberedPeople(const QVector<FormField> &fields, const QVector<FieldReading> &readings,
                         QVector<FieldKind> &kinds);

/// Leaves a plain "name" or something of a recipient's in a form that asks for nothing else of a
/// person: anything has a name.
void leaveLoneName(const QVector<FieldReading> &readings, QVector<FieldKind> &kinds);

/// Whether a field speaks of a last name that is not to be filled.
bool leavesLastName(const QVector<FieldReading> &readings);
/// Whether a field speaks of a last name, filled or not.
bool asksForLastName(const QVector<FieldReading> &readings, const QVector<FieldKind> &kinds);

/// Who reads "name", and is not asked for another, writes the whole, whatever the code says.
void readWholeNames(const QVector<FieldReading> &readings, QVector<FieldKind> &kinds);

/// Leaves the second telephone of an address empty, when the two are not told apart as numbers of
/// one person's: a mobile beside one at home, or at work.
void leaveFurtherPhones(const QVector<FormField> &fields, QVector<FieldKind> &kinds);

/// Leaves the names of further people, of whom no more are the user than there are addresses, and
/// what is asked for again behind such a name.
void leaveFurtherNames(const QVector<FormField> &fields, const QVector<FieldReading> &readings,
                       QVector<FieldKind> &kinds);

/// A person is born once: leaves the dates after the first, which are somebody else's, and further
/// choices of the gender that have no words of their own.
void leaveFurtherBirths(const QVector<FormField> &fields, const QVector<FieldReading> &readings,
                        QVector<FieldKind> &kinds);

/// Leaves a field that only its type makes one for mail, beside one that says so.
void leaveFurtherMail(const QVector<FieldReading> &readings, QVector<FieldKind> &kinds);
