// A library that stands in the current folder under another's name and leaves a trace where it is
// loaded.
#include <cstdio>

namespace
{

struct Intruder {
    Intruder()
    {
        if (std::FILE *trace = std::fopen("loaded", "w"))
            std::fclose(trace);
    }
} const intruder;

} // namespace
