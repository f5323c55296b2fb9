#include "showfamily.h"

std::vector<ShowFamily> &ShowFamily::all()
{
    static std::vector<ShowFamily> families;
    return families;
}
