#pragma once

#include "FieldPlace.h"

class PMCreditCard;

/// What of the card the field takes, in the shape that it wants; empty when it cannot take it.
QString cardValue(const PMCreditCard &card, const FieldPlace &place);
