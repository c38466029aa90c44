#include "FileNameCase.h"

bool fileNamesIgnoreCase()
{
    return true;
}
