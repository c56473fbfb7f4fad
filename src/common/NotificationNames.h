#pragma once

// Every notification name the application posts, declared once. Each line says
// who posts it and what it carries; observers and posters use these constants.

namespace Notifications {

// AudioManager::updateSegments. Object: the engine; userInfo {"segments": QList<Segment>}.
inline constexpr const char* AudioManagerSegmentsDidUpdate = "AudioManagerSegmentsDidUpdate";

// LanguageManager::changeLanguage. No object; userInfo {"language": new code,
// "oldLanguage": previous code}.
inline constexpr const char* LanguageDidChangeNotification = "LanguageDidChangeNotification";

} // namespace Notifications
