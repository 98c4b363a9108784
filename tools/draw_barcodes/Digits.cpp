#include "Digits.h"

namespace ostrand::barcodes {

namespace {

// clang-format off
constexpr const char *kDigits[][kDigitRows] = {
    {" ### ", "#   #", "#   #", "#   #", "#   #", "#   #", " ### "},
    {"  #  ", " ##  ", "# #  ", "  #  ", "  #  ", "  #  ", "#####"},
    {" ### ", "#   #", "    #", "   # ", "  #  ", " #   ", "#####"},
    {" ### ", "#   #", "    #", "  ## ", "    #", "#   #", " ### "},
    {"   # ", "  ## ", " # # ", "#  # ", "#####", "   # ", "   # "},
    {"#####", "#    ", "#### ", "    #", "    #", "#   #", " ### "},
    {" ### ", "#    ", "#    ", "#### ", "#   #", "#   #", " ### "},
    {"#####", "    #", "   # ", "   # ", "  #  ", "  #  ", "  #  "},
    {" ### ", "#   #", "#   #", " ### ", "#   #", "#   #", " ### "},
    {" ### ", "#   #", "#   #", " ####", "    #", "    #", " ### "},
};
// clang-format on

} // namespace

bool DigitPixel(int digit, int column, int row) {
    return kDigits[digit][row][column] == '#';
}

} // namespace ostrand::barcodes
