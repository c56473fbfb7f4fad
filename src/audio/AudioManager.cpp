// SPDX-License-Identifier: GPL-3.0-or-later
#include "audio/AudioManager.h"

#include "audio/AudioOutput.h"
#include "audio/AudioPlayer.h"
#include "audio/PositionTickers.h"
#include "common/Clock.h"
#include "common/NotificationCenter.h"
#include "preferences/Defaults.h"
#include "preferences/PreferenceKeys.h"

#include <QThreadPool>
#include <algorithm>

AudioManager& AudioManager::sharedInstance()
{
    static AudioManager instance(Defaults::standard(), NotificationCenter::defaultCenter());
    return instance;
}

AudioManager::AudioManager(Defaults& defaults, NotificationCenter& center, QObject* parent)
    : QObject(parent), m_defaults(defaults), m_center(center), m_clock(&Clock::system()),
      m_tickerGroup(std::make_unique<PositionTickers>(
          kPositionTickerInterval, [this](int live) { updatePlaybackPosition(live); })),
      m_fadeQueue(std::make_unique<QThreadPool>())
{
    m_fadeQueue->setObjectName(QStringLiteral("com.audiomanager.fade"));
    m_fadeQueue->setMaxThreadCount(1);
    qRegisterMetaType<Segment>();
    qRegisterMetaType<SegmentList>();
    loadSettings();
    m_practice = storedPracticeOptions(m_defaults);
}

AudioManager::~AudioManager()
{
    stopPlayback();
    m_fadeQueue->waitForDone();
    for (const auto& ticker : m_tickers)
        ticker->invalidate();
}

bool AudioManager::fail(const QString& reason)
{
    m_lastError = reason;
    return false;
}

double AudioManager::storedMinSegmentDuration(double stored)
{
    return stored >= 1.0 ? stored : 1.0;
}

qint64 AudioManager::storedSensitivity(double stored)
{
    // The floor turns a stored 0 ("Low") into 1; kept so that older settings
    // files segment as they always did. The cap only keeps the conversion
    // defined: past 2 every value segments as 1 does.
    if (!(stored >= 1.0))
        return 1;
    return static_cast<qint64>(std::min(stored, 2147483647.0));
}

void AudioManager::loadSettings()
{
    using namespace PreferenceKeys;
    m_minSegmentDuration = storedMinSegmentDuration(m_defaults.doubleForKey(MinSegmentDuration));
    m_sensitivity = storedSensitivity(m_defaults.doubleForKey(Sensitivity));
    m_minGapDuration = std::max(m_defaults.doubleForKey(MinGapDuration), 1.0);

    const double speed = m_defaults.doubleForKey(PlaySpeed);
    m_currentRate = (speed >= 0.3 && speed <= 3.0) ? static_cast<float>(speed) : 1.0f;
    const double repeats = m_defaults.doubleForKey(MaxRepeatPlayTimes);
    m_maxRepeatPlayTimes =
        (repeats >= 1.0 && repeats <= 9999.0) ? static_cast<float>(repeats) : 20.0f;
}

void AudioManager::saveSettings(double minSegmentDuration, qint64 sensitivity, double playSpeed)
{
    using namespace PreferenceKeys;
    m_minSegmentDuration = minSegmentDuration;
    m_sensitivity = sensitivity;
    m_currentRate = static_cast<float>(playSpeed);
    m_defaults.setDouble(minSegmentDuration, MinSegmentDuration);
    m_defaults.setDouble(static_cast<double>(sensitivity), Sensitivity);
    m_defaults.setDouble(playSpeed, PlaySpeed);
    m_defaults.synchronize();
}

void AudioManager::resetToDefaultSettings()
{
    saveSettings(1.0, 1, 1.0);
}
