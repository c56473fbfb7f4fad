// SPDX-License-Identifier: GPL-3.0-or-later
#include "preferences/DefaultPreferences.h"

#include "preferences/CheckPreferences.h"
#include "preferences/Defaults.h"
#include "preferences/ObjectStorage.h"
#include "preferences/PracticePreferences.h"
#include "preferences/PreferenceKeys.h"
#include "preferences/ShortcutBindings.h"

namespace DefaultLook {

QColor tableBackgroundColor()
{
    return QColor::fromRgbF(18 / 255.0f, 63 / 255.0f, 124 / 255.0f, 1.0f);
}

QColor dictationTextColor()
{
    return QColor::fromRgbF(228 / 255.0f, 223 / 255.0f, 78 / 255.0f, 1.0f);
}

QFont dictationTextFont()
{
    QFont font(QStringLiteral("Menlo"));
    font.setPointSizeF(20.0);
    return font;
}

} // namespace DefaultLook

void regDefaultPreference(Defaults& store)
{
    using namespace PreferenceKeys;
    ObjectStorage objects(store);
    // One registration per key, in this order.
    objects.registerColorForKey(TableBackgroundColor, DefaultLook::tableBackgroundColor());
    objects.registerColorForKey(DictationTextColor, DefaultLook::dictationTextColor());
    store.registerDefaults({{ShowLineNumbers, true}, {ShowAudioWave, true}, {ShowStatusBar, true}});
    objects.registerFontForKey(DictationTextFont, DefaultLook::dictationTextFont());
    // "kminGapDuration" deliberately has no registered value (an absent key reads
    // as 0, which the engine raises to 1.0).
    store.registerDefaults({{MinSegmentDuration, QVariant(1.0f)}});
    store.registerDefaults({{PlaySpeed, QVariant(1.0)}});
    store.registerDefaults({{MaxRepeatPlayTimes, QVariant(qint64(20))}});
    store.registerDefaults({{Sensitivity, QVariant(qint64(1))}});
    for (const ShortcutBinding& binding : shortcutBindings())
        objects.registerKeyboardShortcutForKey(binding.defaultsKey, binding.defaultShortcut);
    // The check's own defaults, so the store and a bare CheckOptions agree.
    const CheckOptions check;
    store.registerDefaults({{CountPunctuation, check.countPunctuation},
                            {TypoWeight, QVariant(check.typoWeight)},
                            {CountCase, check.countCase},
                            {CheckAsIType, false}});
    // The practice loop's, off or zero, so that playback is as before.
    const PracticeOptions practice;
    store.registerDefaults({{RepeatGap, QVariant(practice.repeatGap)},
                            {RepeatUntilMovedOn, practice.repeatUntilMovedOn},
                            {SlowerFirst, practice.slowerFirst},
                            {RewindOnResume, QVariant(practice.rewindOnResume)},
                            {HoldToPlay, practice.holdToPlay},
                            {HardSentenceThreshold, QVariant(practice.hardThreshold)}});
}
