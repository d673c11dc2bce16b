#pragma once

#include "setup/conditions/MeasureCondition.h"

#include <QList>

namespace skeldon::test {

// The conditions as the wizard's pages have them.

/// What the nine pages are about, in their order.
enum WizardField
{
    Sampling,
    Interval,
    Threshold,
    OverThreshold,
    HostNumber,
    StartOption,
    Hazard,
    Endless,
    Buzzer,
    FieldCount,
};

inline constexpr int LastPage = 8;

/// Their values in that order.
inline QList<int> Values(const CMeasureCondition& c)
{
    return {c.GetSampling(), c.GetInterval(), c.Threshold, c.OverThreshold ? 1 : 0,
            c.SerialNo,      c.StartOpt,      c.Hazard,    c.Endless ? 1 : 0,
            c.Buzzer ? 1 : 0};
}

/// Conditions of those values.
inline CMeasureCondition Condition(const QList<int>& values)
{
    CMeasureCondition c;
    c.SetSampling(values[Sampling]);
    c.SetInterval(values[Interval]);
    c.Threshold = values[Threshold];
    c.OverThreshold = values[OverThreshold] != 0;
    c.SerialNo = values[HostNumber];
    c.StartOpt = values[StartOption];
    c.Hazard = values[Hazard];
    c.Endless = values[Endless] != 0;
    c.Buzzer = values[Buzzer] != 0;
    return c;
}

/// Conditions of which one value is not 0.
inline CMeasureCondition With(WizardField field, int value)
{
    QList<int> values(FieldCount, 0);
    values[field] = value;
    return Condition(values);
}

} // namespace skeldon::test
