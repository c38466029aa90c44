#include "ActivitySource.h"

std::unique_ptr<UserActivity> makeUserActivity()
{
    return UserActivity::create();
}
