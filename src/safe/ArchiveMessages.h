#pragma once

#include "ArchiveResult.h"

/// Says in plain words what happened to an archive and what to do next; empty for what needs no
/// word: success and a cancel.
QString exportMessage(ArchiveResult::Outcome outcome);
QString importMessage(ArchiveResult::Outcome outcome);
