#include "setup/tables/RecorderModel.h"

#include <array>

namespace skeldon {

namespace {

constexpr std::array<RecorderModel, 9> Models = {{
    {UnknownType, "???", 10.0, 10, 1.0, 99, 1, 0, 0},
    {OldestType, "", 10.0, 10, 1.0, 99, 1, 0, 0},
    {1, "PL04", 1.0, 100, 10.0, 9, 1, 9, 1},
    {2, "PL04", 2.0, 50, 5.0, 19, 1, 19, 1},
    {3, "PL04", 2.5, 40, 4.0, 24, 1, 24, 1},
    {5, "PL20", 5.0, 20, 2.0, 49, 1, 49, 1},
    {10, "PL20", 10.0, 10, 1.0, 99, 1, 99, 1},
    {20, "PL20", 20.0, 5, 0.5, 198, 2, 198, 2},
    {50, "QM70", 50.0, 2, 0.2, 490, 5, 495, 5},
}};

} // namespace

bool IsReportedType(int type)
{
    return type > 0 && ModelOfType(type).type == type;
}

const RecorderModel& ModelOfType(int type)
{
    for (const RecorderModel& model : Models) {
        if (model.type == type)
            return model;
    }
    return Models.front();
}

} // namespace skeldon
