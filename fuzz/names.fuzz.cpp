// Any text as a name: the parts of a name, its normalised spelling, and the lines of plain-text lists.

#include "people/CreditNames.h"
#include "people/CrossLinks.h"
#include "people/Name.h"

#include <cstdlib>

using namespace ostrand;

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
    const QString text = QString::fromUtf8(reinterpret_cast<const char *>(data), qsizetype(size));
    Name name;
    name.SetFullName(text);
    if (name.FullName() != text) {
        std::abort();
    }
    for (const bool separate : {false, true}) {
        for (const auto &[attribute, value] : WriteProfilerName(name, separate)) {
            if (value.size() > 25) {
                std::abort();
            }
        }
    }
    const QString first = name.FirstName();
    name.SetMiddleName(name.MiddleName());
    name.SetLastName(name.LastName());
    if (name.FirstName() != first) {
        std::abort();
    }
    NormalizedName(text);
    ExtractName(text);
    return 0;
}
