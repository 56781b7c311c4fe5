#include "fuzz.h"

#include <firmware/sourceplaces.h>

using namespace TARVOORIXM1;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const SourcePlaces places(Fuzz::bytesOf(data, size));
    const FunctionSymbol *before = nullptr;
    for (const FunctionSymbol &function : places.functions()) {
        REQUIRE(!function.name.isEmpty());
        REQUIRE(!before || before->address < function.address);
        before = &function;
    }
    for (quint32 address = 0; address < 0x200; address += 2) {
        const SourcePlace place = places.at(address);
        REQUIRE(place.file.isEmpty() || place.line > 0);
        REQUIRE(place.file.isEmpty() || places.problem().isEmpty());
    }
    return 0;
}
