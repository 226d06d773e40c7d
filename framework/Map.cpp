#include "framework/Map.h"

UINT HashString(const WCHAR* key) {
    UINT hash = 0;
    if (key == nullptr)
        return hash;
    for (; *key != 0; ++key)
        hash = (hash << 5) + hash + *key;
    return hash;
}
