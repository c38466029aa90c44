#pragma once

#include "FieldPlace.h"

class PMIdentity;

/// What of the person the field takes, in the shape that it wants; empty when it cannot take it.
QString identityValue(const PMIdentity &identity, const FieldPlace &place);
