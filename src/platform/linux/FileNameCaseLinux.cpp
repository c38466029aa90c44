#include "FileNameCase.h"

bool fileNamesIgnoreCase()
{
    return false;
}
