#pragma once

#include "FieldReading.h"

/// Leaves a card's number that is asked for together with nothing else that a card shows, and with
/// other things: it is that of a customer's or a library's card.
void leaveLoneCards(const QVector<FormField> &fields, const QVector<FieldReading> &readings,
                    QVector<FieldKind> &kinds);

/// Two dates of expiry side by side are its month and its year; where a field shows "MM" or "YYYY",
/// that is what it takes, whatever its label says.
void splitExpiry(const QVector<FormField> &fields, QVector<FieldKind> &kinds);

/// Leaves number and code of a gift card, by the heading above them.
void leaveGiftCards(const QVector<FormField> &fields, const QVector<FieldReading> &readings,
                    QVector<FieldKind> &kinds);

/// A month without a year, in a line whose text speaks of the whole date, takes the whole.
void joinExpiry(const QVector<FormField> &fields, const QVector<FieldReading> &readings,
                QVector<FieldKind> &kinds);
