#include "setup/tables/GScale.h"

namespace skeldon {

int StepGUp(int tenths)
{
    if (tenths <= 99)
        return tenths + 1;
    if (tenths > 198)
        return tenths + 5;
    const int last = tenths % 10;
    return last == 4 || last == 5 ? tenths + 1 : tenths + 2;
}

int StepGDown(int tenths)
{
    if (tenths >= 204)
        return tenths - 5;
    if (tenths <= 101)
        return tenths - 1;
    const int last = tenths % 10;
    return last == 5 || last == 6 ? tenths - 1 : tenths - 2;
}

} // namespace skeldon
