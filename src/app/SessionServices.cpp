// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/SessionServices.h"

#include "app/AutoSaveQueue.h"
#include "audio/AudioManager.h"
#include "common/NotificationCenter.h"
#include "preferences/Defaults.h"
#include "transcript/DocumentManager.h"
#include "transcript/TranscriptionManager.h"

SessionServices SessionServices::shared()
{
    return {AudioManager::sharedInstance(), NotificationCenter::defaultCenter(),
            Defaults::standard(), TranscriptionManager::sharedInstance(),
            DocumentManager::shared(), AutoSaveQueue::shared()};
}
