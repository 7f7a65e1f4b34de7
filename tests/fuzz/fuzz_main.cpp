// SPDX-License-Identifier: GPL-3.0-or-later
// The fuzzer's entry: LUMBRIDLE_FUZZ_TARGET names the reader to fuzz ("list" prints them all).
#include "FuzzTargets.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace {
const FuzzTarget *target = nullptr;
}

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    const QByteArray name = qgetenv("LUMBRIDLE_FUZZ_TARGET");
    if (name == "list") {
        for (const FuzzTarget &each : FuzzTargets())
            std::printf("%s %s\n", each.name, qPrintable(each.seeds.join(u' ')));
        std::exit(0);
    }
    target = FindFuzzTarget(name);
    if (!target) {
        std::fprintf(stderr, "set LUMBRIDLE_FUZZ_TARGET to a reader's name, or to list\n");
        std::exit(2);
    }
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    target->check(QByteArray::fromRawData(reinterpret_cast<const char *>(data), qsizetype(size)));
    return 0;
}
