// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class AudioManager;
class AutoSaveQueue;
class Defaults;
class DocumentManager;
class NotificationCenter;
class TranscriptionManager;

// The long-lived parts a window works with: the application's single
// instances, or fresh ones in a test.
struct SessionServices
{
    AudioManager& engine;
    NotificationCenter& center;
    Defaults& defaults;
    TranscriptionManager& transcriptions;
    const DocumentManager& documents;
    AutoSaveQueue& autoSave;

    static SessionServices shared();
};
