#pragma once

#include "ItemQuery.h"

/// The words of a search beside plain text, in English and in the language of the window.
SearchTerms searchTerms();

/// How to use them, in a few lines.
QString searchHelp();
