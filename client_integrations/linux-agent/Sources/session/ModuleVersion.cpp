#include "session/LoadedModule.h"

extern "C" __attribute__((visibility("default"))) const char quillseal_module_version[];
const char quillseal_module_version[] = QUILLSEAL_VERSION;
