#pragma once

#include "FieldKind.h"

class FormField;

/// What the page itself says that a field takes, by the tokens of the HTML standard: the sections,
/// addresses and contacts before the last token do not change the kind. Unknown when it says
/// nothing, or what cannot be: pages write "new-password" into plain fields only to keep others
/// out.
FieldKind kindOfAutocomplete(const FormField &field);
