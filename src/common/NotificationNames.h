#pragma once

// Every notification name the application posts, declared once. Each line says
// who posts it and what it carries; observers and posters use these constants.

namespace Notifications {

// AudioManager::updateSegments. Object: the engine; userInfo {"segments": QList<Segment>}.
inline constexpr const char* AudioManagerSegmentsDidUpdate = "AudioManagerSegmentsDidUpdate";

} // namespace Notifications
