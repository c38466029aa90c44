#pragma once

#include "UserActivity.h"

/// What tells since when the user is away on this system and in this kind of session.
std::unique_ptr<UserActivity> makeUserActivity();
