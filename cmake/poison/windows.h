#error "portable core code must not include <windows.h>; move window code to a win/ folder"
