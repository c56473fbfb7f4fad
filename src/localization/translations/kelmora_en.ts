<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Kelmora</source>
        <translation>Kelmora</translation>
    </message>
    <message>
        <source>No audio file opened</source>
        <translation>No audio file opened</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Preferences</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>Don&apos;t Save</source>
        <translation>Don&apos;t Save</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Later</translation>
    </message>
    <message>
        <source>Save Dictation?</source>
        <translation>Save Dictation?</translation>
    </message>
    <message>
        <source>Do you want to save the dictation before closing?</source>
        <translation>Do you want to save the dictation before closing?</translation>
    </message>
    <message>
        <source>Error Opening File</source>
        <translation>Error Opening File</translation>
    </message>
    <message>
        <source>Invalid File Type</source>
        <translation>Invalid File Type</translation>
    </message>
    <message>
        <source>Please select a supported audio file</source>
        <translation>Please select a supported audio file</translation>
    </message>
    <message>
        <source>File Access Error</source>
        <translation>File Access Error</translation>
    </message>
    <message>
        <source>File Too Large</source>
        <translation>File Too Large</translation>
    </message>
    <message>
        <source>Please select an audio file smaller than %llu MB</source>
        <translation>Please select an audio file smaller than %llu MB</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Failed to process audio file</source>
        <translation>Failed to process audio file</translation>
    </message>
    <message>
        <source>Please grant access to the folder containing your audio files</source>
        <translation>Please grant access to the folder containing your audio files</translation>
    </message>
    <message>
        <source>Grant Access</source>
        <translation>Grant Access</translation>
    </message>
    <message>
        <source>Save Transcript</source>
        <translation>Save Transcript</translation>
    </message>
    <message>
        <source>Save Error</source>
        <translation>Save Error</translation>
    </message>
    <message>
        <source>Error writing to file</source>
        <translation>Error writing to file</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warning</translation>
    </message>
    <message>
        <source>Please open an audio file first</source>
        <translation>Please open an audio file first</translation>
    </message>
    <message>
        <source>Failed to load transcription</source>
        <translation>Failed to load transcription</translation>
    </message>
    <message>
        <source>Invalid File</source>
        <translation>Invalid File</translation>
    </message>
    <message>
        <source>lyric duration is too long</source>
        <translation>lyric duration is too long</translation>
    </message>
    <message>
        <source>Are you sure to clear dictation?</source>
        <translation>Are you sure to clear dictation?</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Samples</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duration</translation>
    </message>
    <message>
        <source>Segments</source>
        <translation>Segments</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Play</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>Repeat</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Forward</translation>
    </message>
    <message>
        <source>Segment</source>
        <translation>Segment</translation>
    </message>
    <message>
        <source>Dictation</source>
        <translation>Dictation</translation>
    </message>
    <message>
        <source>|Dictation</source>
        <translation>|Dictation</translation>
    </message>
    <message>
        <source>English</source>
        <translation>English</translation>
    </message>
    <message>
        <source>Chinese(Simplified)</source>
        <translation>Chinese (Simplified)</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>Spanish</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>Japanese</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>Korean</translation>
    </message>
    <message>
        <source>German</source>
        <translation>German</translation>
    </message>
    <message>
        <source>French</source>
        <translation>French</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation>Russian</translation>
    </message>
    <message>
        <source>Thai</source>
        <translation>Thai</translation>
    </message>
    <message>
        <source>Vietnamese</source>
        <translation>Vietnamese</translation>
    </message>
    <message>
        <source>Input must not exceed 6 digits</source>
        <translation>Input must not exceed 6 digits</translation>
    </message>
    <message>
        <source>Invalid input: %@</source>
        <translation>Invalid input: %@</translation>
    </message>
    <message>
        <source>Settings Reset</source>
        <translation>Settings Reset</translation>
    </message>
    <message>
        <source>All settings have been restored to their default values</source>
        <translation>All settings have been restored to their default values</translation>
    </message>
    <message>
        <source>Warnning</source>
        <translation>Warning</translation>
    </message>
    <message>
        <source>Please restart the app to apply the new language.</source>
        <translation>Please restart the app to apply the new language.</translation>
    </message>
    <message>
        <source>Restart Now</source>
        <translation>Restart Now</translation>
    </message>
    <message>
        <source>Error checking for updates</source>
        <translation>Error checking for updates</translation>
    </message>
    <message>
        <source>Error parsing updates JSON</source>
        <translation>Error parsing updates JSON</translation>
    </message>
    <message>
        <source>App is already the latest version</source>
        <translation>App is already the latest version</translation>
    </message>
    <message>
        <source>Update Available</source>
        <translation>Update Available</translation>
    </message>
    <message>
        <source>Version %@ is available.

Release Notes:
%@</source>
        <translation>Version %@ is available.

Release Notes:
%@</translation>
    </message>
    <message>
        <source>No release notes available</source>
        <translation>No release notes available</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Update</translation>
    </message>
    <message>
        <source>Audio Files</source>
        <translation>Audio Files</translation>
    </message>
    <message>
        <source>Analysing audio</source>
        <translation>Analysing audio</translation>
    </message>
    <message>
        <source>Waveform</source>
        <translation>Waveform</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Open…</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Open &amp;Recent</translation>
    </message>
    <message>
        <source>&amp;Clear Menu</source>
        <translation>&amp;Clear Menu</translation>
    </message>
    <message>
        <source>&amp;Export Dictation…</source>
        <translation>&amp;Export Dictation…</translation>
    </message>
    <message>
        <source>&amp;Quit Kelmora</source>
        <translation>&amp;Quit Kelmora</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;View</translation>
    </message>
    <message>
        <source>&amp;Window Size</source>
        <translation>&amp;Window Size</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>&amp;Preferences…</translation>
    </message>
    <message>
        <source>&amp;Check for Updates…</source>
        <translation>&amp;Check for Updates…</translation>
    </message>
    <message>
        <source>Kelmora &amp;Help</source>
        <translation>Kelmora &amp;Help</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>Play/Pause</source>
        <translation>Play/Pause</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Export</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Import</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Clear</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Music</translation>
    </message>
    <message>
        <source>Open an audio file</source>
        <translation>Open an audio file</translation>
    </message>
    <message>
        <source>Play or pause the current segment</source>
        <translation>Play or pause the current segment</translation>
    </message>
    <message>
        <source>Repeat each segment, or play on to the next</source>
        <translation>Repeat each segment, or play on to the next</translation>
    </message>
    <message>
        <source>Export the dictation as an LRC file</source>
        <translation>Export the dictation as an LRC file</translation>
    </message>
    <message>
        <source>Open the preferences</source>
        <translation>Open the preferences</translation>
    </message>
    <message>
        <source>Import a dictation from an LRC file</source>
        <translation>Import a dictation from an LRC file</translation>
    </message>
    <message>
        <source>Clear the dictation</source>
        <translation>Clear the dictation</translation>
    </message>
    <message>
        <source>Open a file from your music folder</source>
        <translation>Open a file from your music folder</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>Toolbar</translation>
    </message>
    <message>
        <source>Status bar</source>
        <translation>Status bar</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Appearance</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>Shortcuts</translation>
    </message>
    <message>
        <source>Shortest segment (seconds)</source>
        <translation>Shortest segment (seconds)</translation>
    </message>
    <message>
        <source>Play speed</source>
        <translation>Play speed</translation>
    </message>
    <message>
        <source>Plays of each segment in repeat mode</source>
        <translation>Plays of each segment in repeat mode</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Language</translation>
    </message>
    <message>
        <source>A new language shows after a restart.</source>
        <translation>A new language shows after a restart.</translation>
    </message>
    <message>
        <source>Table background</source>
        <translation>Table background</translation>
    </message>
    <message>
        <source>Text colour</source>
        <translation>Text colour</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Font</translation>
    </message>
    <message>
        <source>Show line numbers</source>
        <translation>Show line numbers</translation>
    </message>
    <message>
        <source>Show the waveform</source>
        <translation>Show the waveform</translation>
    </message>
    <message>
        <source>Show the status bar</source>
        <translation>Show the status bar</translation>
    </message>
    <message>
        <source>Previous segment</source>
        <translation>Previous segment</translation>
    </message>
    <message>
        <source>Next segment</source>
        <translation>Next segment</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>Play or pause</translation>
    </message>
    <message>
        <source>Repeat mode</source>
        <translation>Repeat mode</translation>
    </message>
    <message>
        <source>First segment</source>
        <translation>First segment</translation>
    </message>
    <message>
        <source>Split the audio again</source>
        <translation>Split the audio again</translation>
    </message>
    <message>
        <source>Click a field and press the new key. Click elsewhere to finish.</source>
        <translation>Click a field and press the new key. Click elsewhere to finish.</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <translation>Reset to Defaults</translation>
    </message>
    <message>
        <source>Choose the dictation font</source>
        <translation>Choose the dictation font</translation>
    </message>
    <message>
        <source>Transcripts</source>
        <translation>Transcripts</translation>
    </message>
    <message>
        <source>The lesson is still being analysed. Import the dictation once it has opened.</source>
        <translation>The lesson is still being analysed. Import the dictation once it has opened.</translation>
    </message>
    <message>
        <source>Open a recording with %@ or drop it here</source>
        <translation>Open a recording with %@ or drop it here</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Edit</translation>
    </message>
    <message>
        <source>&amp;Playback</source>
        <translation>&amp;Playback</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Help</translation>
    </message>
    <message>
        <source>&amp;Import Dictation…</source>
        <translation>&amp;Import Dictation…</translation>
    </message>
    <message>
        <source>Import from &amp;Music Folder…</source>
        <translation>Import from &amp;Music Folder…</translation>
    </message>
    <message>
        <source>&amp;Clear Dictation…</source>
        <translation>&amp;Clear Dictation…</translation>
    </message>
    <message>
        <source>&amp;Play/Pause</source>
        <translation>&amp;Play/Pause</translation>
    </message>
    <message>
        <source>Pre&amp;vious Segment</source>
        <translation>Pre&amp;vious Segment</translation>
    </message>
    <message>
        <source>&amp;Next Segment</source>
        <translation>&amp;Next Segment</translation>
    </message>
    <message>
        <source>&amp;Repeat Mode</source>
        <translation>&amp;Repeat Mode</translation>
    </message>
    <message>
        <source>&amp;First Segment</source>
        <translation>&amp;First Segment</translation>
    </message>
    <message>
        <source>&amp;Split the Audio Again</source>
        <translation>&amp;Split the Audio Again</translation>
    </message>
    <message>
        <source>Quick Help Guide:

1. Open Audio File: %@
2. Play/Pause: %@
3. Next Segment: %@
4. Previous Segment: %@
5. Repeat Mode: %@
6. First Segment: %@
7. Split the Audio Again: %@
8. Export Dictation: %@

If you have any questions, email me: support@kelmora.app.</source>
        <translation>Quick Help Guide:

1. Open Audio File: %@
2. Play/Pause: %@
3. Next Segment: %@
4. Previous Segment: %@
5. Repeat Mode: %@
6. First Segment: %@
7. Split the Audio Again: %@
8. Export Dictation: %@

If you have any questions, email me: support@kelmora.app.</translation>
    </message>
    <message>
        <source>&amp;Attach Reference Text…</source>
        <translation>&amp;Attach Reference Text…</translation>
    </message>
    <message>
        <source>Remo&amp;ve Reference Text</source>
        <translation>Remo&amp;ve Reference Text</translation>
    </message>
    <message>
        <source>Chec&amp;k Segment</source>
        <translation>Chec&amp;k Segment</translation>
    </message>
    <message>
        <source>Show Next &amp;Word</source>
        <translation>Show Next &amp;Word</translation>
    </message>
    <message>
        <source>Reference</source>
        <translation>Reference</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>Check</translation>
    </message>
    <message>
        <source>Attach the lesson&apos;s text (.txt, .srt, .vtt or .lrc) to check your typing</source>
        <translation>Attach the lesson&apos;s text (.txt, .srt, .vtt or .lrc) to check your typing</translation>
    </message>
    <message>
        <source>Check the current segment against the reference text</source>
        <translation>Check the current segment against the reference text</translation>
    </message>
    <message>
        <source>Reference Texts</source>
        <translation>Reference Texts</translation>
    </message>
    <message>
        <source>Cannot Read Reference Text</source>
        <translation>Cannot Read Reference Text</translation>
    </message>
    <message>
        <source>Cannot Store Reference Text</source>
        <translation>Cannot Store Reference Text</translation>
    </message>
    <message>
        <source>“%@” could not be read.</source>
        <translation>“%@” could not be read.</translation>
    </message>
    <message>
        <source>“%@” is not a .txt, .srt, .vtt or .lrc file.</source>
        <translation>“%@” is not a .txt, .srt, .vtt or .lrc file.</translation>
    </message>
    <message>
        <source>“%@” is larger than 16 MB.</source>
        <translation>“%@” is larger than 16 MB.</translation>
    </message>
    <message>
        <source>“%@” is not a text file.</source>
        <translation>“%@” is not a text file.</translation>
    </message>
    <message>
        <source>“%@” is not UTF-8 text.</source>
        <translation>“%@” is not UTF-8 text.</translation>
    </message>
    <message>
        <source>“%@” is empty.</source>
        <translation>“%@” is empty.</translation>
    </message>
    <message>
        <source>“%@” does not start with WEBVTT.</source>
        <translation>“%@” does not start with WEBVTT.</translation>
    </message>
    <message>
        <source>“%@” has no text within the recording.</source>
        <translation>“%@” has no text within the recording.</translation>
    </message>
    <message>
        <source>Press %@ to check this segment.</source>
        <translation>Press %@ to check this segment.</translation>
    </message>
    <message>
        <source>Next word: %@</source>
        <translation>Next word: %@</translation>
    </message>
    <message>
        <source>Every word is typed.</source>
        <translation>Every word is typed.</translation>
    </message>
    <message>
        <source>No reference words for this segment.</source>
        <translation>No reference words for this segment.</translation>
    </message>
    <message>
        <source>No mistakes.</source>
        <translation>No mistakes.</translation>
    </message>
    <message>
        <source>1 mistake: %@.</source>
        <translation>1 mistake: %@.</translation>
    </message>
    <message>
        <source>%@ mistakes: %@.</source>
        <translation>%@ mistakes: %@.</translation>
    </message>
    <message>
        <source>&apos;%@&apos; should be &apos;%@&apos;</source>
        <translation>&apos;%@&apos; should be &apos;%@&apos;</translation>
    </message>
    <message>
        <source>missing &apos;%@&apos;</source>
        <translation>missing &apos;%@&apos;</translation>
    </message>
    <message>
        <source>extra &apos;%@&apos;</source>
        <translation>extra &apos;%@&apos;</translation>
    </message>
    <message>
        <source>Segment %@</source>
        <translation>Segment %@</translation>
    </message>
    <message>
        <source>lesson %@</source>
        <translation>lesson %@</translation>
    </message>
    <message>
        <source>Lesson %@</source>
        <translation>Lesson %@</translation>
    </message>
    <message>
        <source>Checked: no mistakes</source>
        <translation>Checked: no mistakes</translation>
    </message>
    <message>
        <source>Checked: typos only</source>
        <translation>Checked: typos only</translation>
    </message>
    <message>
        <source>Checked: mistakes</source>
        <translation>Checked: mistakes</translation>
    </message>
    <message>
        <source>Checking</source>
        <translation>Checking</translation>
    </message>
    <message>
        <source>Count punctuation</source>
        <translation>Count punctuation</translation>
    </message>
    <message>
        <source>Typo weight:</source>
        <translation>Typo weight:</translation>
    </message>
    <message>
        <source>Count case</source>
        <translation>Count case</translation>
    </message>
    <message>
        <source>Check as I type</source>
        <translation>Check as I type</translation>
    </message>
    <message>
        <source>Check segment</source>
        <translation>Check segment</translation>
    </message>
    <message>
        <source>Show next word</source>
        <translation>Show next word</translation>
    </message>
    <message>
        <source>Recovered typing from your last session</source>
        <translation>Recovered typing from your last session</translation>
    </message>
    <message>
        <source>Typing since the last save is not protected: the journal cannot be written</source>
        <translation>Typing since the last save is not protected: the journal cannot be written</translation>
    </message>
    <message>
        <source>Your typing could not be saved to disk; Kelmora will try again at the next save</source>
        <translation>Your typing could not be saved to disk; Kelmora will try again at the next save</translation>
    </message>
    <message>
        <source>The last save failed: what you typed since then may not be on disk.</source>
        <translation>The last save failed: what you typed since then may not be on disk.</translation>
    </message>
    <message>
        <source>The transcript is larger than 16 MB and was not read.</source>
        <translation>The transcript is larger than 16 MB and was not read.</translation>
    </message>
    <message>
        <source>The transcript is not a regular file and was not read.</source>
        <translation>The transcript is not a regular file and was not read.</translation>
    </message>
    <message>
        <source>Recover Earlier &amp;Dictation…</source>
        <translation>Recover Earlier &amp;Dictation…</translation>
    </message>
    <message>
        <source>A saved dictation that could not be used was set aside; File → Recover Earlier Dictation… brings it back</source>
        <translation>A saved dictation that could not be used was set aside; File → Recover Earlier Dictation… brings it back</translation>
    </message>
    <message>
        <source>Recover Earlier Dictation</source>
        <translation>Recover Earlier Dictation</translation>
    </message>
    <message>
        <source>Versions of this lesson&apos;s dictation that were set aside, newest first:</source>
        <translation>Versions of this lesson&apos;s dictation that were set aside, newest first:</translation>
    </message>
    <message>
        <source>Recover</source>
        <translation>Recover</translation>
    </message>
    <message>
        <source>No earlier dictation of this recording was set aside.</source>
        <translation>No earlier dictation of this recording was set aside.</translation>
    </message>
    <message>
        <source>A saved dictation that could not be used could not be set aside; it is not saved over</source>
        <translation>A saved dictation that could not be used could not be set aside; it is not saved over</translation>
    </message>
    <message>
        <source>Kelmora found a dictation typed for this recording at %1 (last saved %2). Use it?</source>
        <translation>Kelmora found a dictation typed for this recording at %1 (last saved %2). Use it?</translation>
    </message>
    <message>
        <source>Use It</source>
        <translation>Use It</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Not Now</translation>
    </message>
    <message>
        <source>Spli&amp;t Segment at Play Head</source>
        <translation>Spli&amp;t Segment at Play Head</translation>
    </message>
    <message>
        <source>&amp;Merge with Next Segment</source>
        <translation>&amp;Merge with Next Segment</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Undo</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Redo</translation>
    </message>
    <message>
        <source>&amp;Undo %@</source>
        <translation>&amp;Undo %@</translation>
    </message>
    <message>
        <source>&amp;Redo %@</source>
        <translation>&amp;Redo %@</translation>
    </message>
    <message>
        <source>Split Segment</source>
        <translation>Split Segment</translation>
    </message>
    <message>
        <source>Merge Segments</source>
        <translation>Merge Segments</translation>
    </message>
    <message>
        <source>Move Boundary</source>
        <translation>Move Boundary</translation>
    </message>
    <message>
        <source>Clear Dictation</source>
        <translation>Clear Dictation</translation>
    </message>
    <message>
        <source>Import Dictation</source>
        <translation>Import Dictation</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>Split</translation>
    </message>
    <message>
        <source>Split the segment in two at the play head</source>
        <translation>Split the segment in two at the play head</translation>
    </message>
    <message>
        <source>Nothing was split: each part of a segment must be at least 0.1 seconds long</source>
        <translation>Nothing was split: each part of a segment must be at least 0.1 seconds long</translation>
    </message>
    <message>
        <source>Move Segment Start &amp;Earlier</source>
        <translation>Move Segment Start &amp;Earlier</translation>
    </message>
    <message>
        <source>Move Segment Start &amp;Later</source>
        <translation>Move Segment Start &amp;Later</translation>
    </message>
    <message>
        <source>Split segment</source>
        <translation>Split segment</translation>
    </message>
    <message>
        <source>Merge with next</source>
        <translation>Merge with next</translation>
    </message>
    <message>
        <source>Practice</source>
        <translation>Practice</translation>
    </message>
    <message>
        <source>Pause after each repetition:</source>
        <translation>Pause after each repetition:</translation>
    </message>
    <message>
        <source>Play the first repetition slower</source>
        <translation>Play the first repetition slower</translation>
    </message>
    <message>
        <source>Step back when playing resumes:</source>
        <translation>Step back when playing resumes:</translation>
    </message>
    <message>
        <source>Play only while the play key is held</source>
        <translation>Play only while the play key is held</translation>
    </message>
    <message>
        <source>A sentence is hard below:</source>
        <translation>A sentence is hard below:</translation>
    </message>
    <message>
        <source>s</source>
        <translation>s</translation>
    </message>
    <message>
        <source>Until I move on</source>
        <translation>Until I move on</translation>
    </message>
    <message>
        <source>Practise &amp;Hard Sentences</source>
        <translation>Practise &amp;Hard Sentences</translation>
    </message>
    <message>
        <source>Practise hard sentences</source>
        <translation>Practise hard sentences</translation>
    </message>
    <message>
        <source>Hard sentences: %d left</source>
        <translation>Hard sentences: %d left</translation>
    </message>
    <message>
        <source>No hard sentences in this lesson</source>
        <translation>No hard sentences in this lesson</translation>
    </message>
    <message>
        <source>%d due for review</source>
        <translation>%d due for review</translation>
    </message>
    <message>
        <source>Checked once</source>
        <translation>Checked once</translation>
    </message>
    <message>
        <source>Checked %d times</source>
        <translation>Checked %d times</translation>
    </message>
    <message>
        <source>1 hint</source>
        <translation>1 hint</translation>
    </message>
    <message>
        <source>%d hints</source>
        <translation>%d hints</translation>
    </message>
    <message>
        <source>last %@, best %@</source>
        <translation>last %@, best %@</translation>
    </message>
    <message>
        <source>%d min %d s</source>
        <translation>%d min %d s</translation>
    </message>
    <message>
        <source>%d s</source>
        <translation>%d s</translation>
    </message>
    <message>
        <source>Your practice record could not be saved: %@</source>
        <translation>Your practice record could not be saved: %@</translation>
    </message>
    <message>
        <source>Your practice record could not be read and is not saved over: %@</source>
        <translation>Your practice record could not be read and is not saved over: %@</translation>
    </message>
    <message>
        <source>Cut Segments at &amp;Sentences</source>
        <translation>Cut Segments at &amp;Sentences</translation>
    </message>
    <message>
        <source>Cut at Sentences</source>
        <translation>Cut at Sentences</translation>
    </message>
    <message>
        <source>Segments now: %d</source>
        <translation>Segments now: %d</translation>
    </message>
    <message>
        <source>Uncertain segment starts: %@</source>
        <translation>Uncertain segment starts: %@</translation>
    </message>
    <message>
        <source>&amp;Align Again…</source>
        <translation>&amp;Align Again…</translation>
    </message>
    <message>
        <source>Align Reference Text</source>
        <translation>Align Reference Text</translation>
    </message>
    <message>
        <source>Kelmora can place each sentence of “%@” on the recording. Which language is the lesson in?</source>
        <translation>Kelmora can place each sentence of “%@” on the recording. Which language is the lesson in?</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Language:</translation>
    </message>
    <message>
        <source>Align</source>
        <translation>Align</translation>
    </message>
    <message>
        <source>Don’t Align</source>
        <translation>Don’t Align</translation>
    </message>
    <message>
        <source>Placing the sentences on the recording…</source>
        <translation>Placing the sentences on the recording…</translation>
    </message>
    <message>
        <source>Aligned %d sentences, %d uncertain</source>
        <translation>Aligned %d sentences, %d uncertain</translation>
    </message>
    <message>
        <source>The reference text could not be aligned</source>
        <translation>The reference text could not be aligned</translation>
    </message>
    <message>
        <source>%@ The reference text stays as it was.</source>
        <translation>%@ The reference text stays as it was.</translation>
    </message>
</context>
</TS>
