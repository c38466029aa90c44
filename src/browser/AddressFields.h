#pragma once

#include "FieldKind.h"
#include "FieldReading.h"
#include "FormField.h"

#include <QVector>

/// Settles the words of an address that mean one thing in one country and another elsewhere:
/// "county" is the state in Britain, and stands beside the state in America.
void settleAddress(const QVector<FormField> &fields, const QVector<FieldReading> &readings,
                   QVector<FieldKind> &kinds);

/// How many addresses are asked for, one at least.
int addressesIn(const QVector<FieldKind> &kinds);

/// Of two streets one after another, the field that is none, and what it is: the second may be the
/// second line. A first that says more than the program knows ("name of this address") leaves the
/// street to a second that is plain.
/// @param at the second
QPair<int, FieldKind> secondStreet(int at, const QVector<FormField> &fields,
                                   const QVector<FieldReading> &readings);

/// Leaves what belongs to an address that is not there: a second street without a second city,
/// first those whose text says more than the program knows.
void leaveExtraStreets(const QVector<FormField> &fields, const QVector<FieldReading> &readings,
                       QVector<FieldKind> &kinds);
