#include "RandomSource.h"

#include <openssl/rand.h>

bool systemRandom(unsigned char *buffer, int size)
{
    return RAND_bytes(buffer, size) == 1;
}
