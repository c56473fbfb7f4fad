#include "preferences/DefaultPreferences.h"

#include "preferences/Defaults.h"
#include "preferences/PreferenceKeys.h"

void regDefaultPreference(Defaults& store)
{
    using namespace PreferenceKeys;
    // One registration per key, in this order; "kminGapDuration" deliberately
    // has no registered value (an absent key reads as 0, which the engine raises to 1.0).
    store.registerDefaults({{MinSegmentDuration, QVariant(1.0f)}});
    store.registerDefaults({{PlaySpeed, QVariant(1.0)}});
    store.registerDefaults({{MaxRepeatPlayTimes, QVariant(qint64(20))}});
    store.registerDefaults({{Sensitivity, QVariant(qint64(1))}});
}
