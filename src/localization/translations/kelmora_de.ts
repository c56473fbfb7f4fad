<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Kelmora</source>
        <translation>Kelmora</translation>
    </message>
    <message>
        <source>No audio file opened</source>
        <translation>Keine Audiodatei geöffnet</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Don&apos;t Save</source>
        <translation>Nicht speichern</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Später</translation>
    </message>
    <message>
        <source>Save Dictation?</source>
        <translation>Diktat speichern?</translation>
    </message>
    <message>
        <source>Do you want to save the dictation before closing?</source>
        <translation>Möchten Sie das Diktat vor dem Schließen speichern?</translation>
    </message>
    <message>
        <source>Error Opening File</source>
        <translation>Fehler beim Öffnen der Datei</translation>
    </message>
    <message>
        <source>Invalid File Type</source>
        <translation>Ungültiger Dateityp</translation>
    </message>
    <message>
        <source>Please select a supported audio file</source>
        <translation>Bitte wählen Sie eine unterstützte Audiodatei aus</translation>
    </message>
    <message>
        <source>File Access Error</source>
        <translation>Fehler beim Dateizugriff</translation>
    </message>
    <message>
        <source>File Too Large</source>
        <translation>Datei zu groß</translation>
    </message>
    <message>
        <source>Please select an audio file smaller than %llu MB</source>
        <translation>Bitte wählen Sie eine Audiodatei, die kleiner als %llu MB ist</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Failed to process audio file</source>
        <translation>Die Audiodatei konnte nicht verarbeitet werden</translation>
    </message>
    <message>
        <source>Please grant access to the folder containing your audio files</source>
        <translation>Bitte gewähren Sie Zugriff auf den Ordner mit Ihren Audiodateien</translation>
    </message>
    <message>
        <source>Grant Access</source>
        <translation>Zugriff gewähren</translation>
    </message>
    <message>
        <source>Save Transcript</source>
        <translation>Transkript speichern</translation>
    </message>
    <message>
        <source>Save Error</source>
        <translation>Fehler beim Speichern</translation>
    </message>
    <message>
        <source>Error writing to file</source>
        <translation>Fehler beim Schreiben der Datei</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Please open an audio file first</source>
        <translation>Bitte öffnen Sie zuerst eine Audiodatei</translation>
    </message>
    <message>
        <source>Failed to load transcription</source>
        <translation>Das Transkript konnte nicht geladen werden</translation>
    </message>
    <message>
        <source>Invalid File</source>
        <translation>Ungültige Datei</translation>
    </message>
    <message>
        <source>lyric duration is too long</source>
        <translation>Die Dauer des Liedtexts ist zu lang</translation>
    </message>
    <message>
        <source>Are you sure to clear dictation?</source>
        <translation>Möchten Sie das Diktat wirklich löschen?</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Abtastwerte</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Segments</source>
        <translation>Abschnitte</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Wiedergabe</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Fortlaufend</translation>
    </message>
    <message>
        <source>Segment</source>
        <translation>Abschnitt</translation>
    </message>
    <message>
        <source>Dictation</source>
        <translation>Diktat</translation>
    </message>
    <message>
        <source>|Dictation</source>
        <translation>|Diktat</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Englisch</translation>
    </message>
    <message>
        <source>Chinese(Simplified)</source>
        <translation>Chinesisch (vereinfacht)</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>Spanisch</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>Japanisch</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>Koreanisch</translation>
    </message>
    <message>
        <source>German</source>
        <translation>Deutsch</translation>
    </message>
    <message>
        <source>French</source>
        <translation>Französisch</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation>Russisch</translation>
    </message>
    <message>
        <source>Thai</source>
        <translation>Thailändisch</translation>
    </message>
    <message>
        <source>Vietnamese</source>
        <translation>Vietnamesisch</translation>
    </message>
    <message>
        <source>Input must not exceed 6 digits</source>
        <translation>Die Eingabe darf höchstens 6 Ziffern haben</translation>
    </message>
    <message>
        <source>Invalid input: %@</source>
        <translation>Ungültige Eingabe: %@</translation>
    </message>
    <message>
        <source>Settings Reset</source>
        <translation>Einstellungen zurückgesetzt</translation>
    </message>
    <message>
        <source>All settings have been restored to their default values</source>
        <translation>Alle Einstellungen wurden auf ihre Standardwerte zurückgesetzt</translation>
    </message>
    <message>
        <source>Warnning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Please restart the app to apply the new language.</source>
        <translation>Bitte starten Sie die App neu, um die neue Sprache zu übernehmen.</translation>
    </message>
    <message>
        <source>Restart Now</source>
        <translation>Jetzt neu starten</translation>
    </message>
    <message>
        <source>Error checking for updates</source>
        <translation>Fehler bei der Suche nach Updates</translation>
    </message>
    <message>
        <source>Error parsing updates JSON</source>
        <translation>Fehler beim Auswerten der Update-Daten (JSON)</translation>
    </message>
    <message>
        <source>App is already the latest version</source>
        <translation>Die App ist bereits auf dem neuesten Stand</translation>
    </message>
    <message>
        <source>Update Available</source>
        <translation>Update verfügbar</translation>
    </message>
    <message>
        <source>Version %@ is available.

Release Notes:
%@</source>
        <translation>Version %@ ist verfügbar.

Versionshinweise:
%@</translation>
    </message>
    <message>
        <source>No release notes available</source>
        <translation>Keine Versionshinweise verfügbar</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>Audio Files</source>
        <translation>Audiodateien</translation>
    </message>
    <message>
        <source>Analysing audio</source>
        <translation>Audio wird analysiert</translation>
    </message>
    <message>
        <source>Waveform</source>
        <translation>Wellenform</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>Ö&amp;ffnen…</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>&amp;Clear Menu</source>
        <translation>Liste &amp;leeren</translation>
    </message>
    <message>
        <source>&amp;Export Dictation…</source>
        <translation>Diktat &amp;exportieren…</translation>
    </message>
    <message>
        <source>&amp;Quit Kelmora</source>
        <translation>Kelmora &amp;beenden</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Window Size</source>
        <translation>&amp;Fenstergröße</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>&amp;Einstellungen…</translation>
    </message>
    <message>
        <source>&amp;Check for Updates…</source>
        <translation>Nach &amp;Updates suchen…</translation>
    </message>
    <message>
        <source>Kelmora &amp;Help</source>
        <translation>Kelmora-&amp;Hilfe</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Play/Pause</source>
        <translation>Wiedergabe/Pause</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Musik</translation>
    </message>
    <message>
        <source>Open an audio file</source>
        <translation>Audiodatei öffnen</translation>
    </message>
    <message>
        <source>Play or pause the current segment</source>
        <translation>Aktuellen Abschnitt abspielen oder pausieren</translation>
    </message>
    <message>
        <source>Repeat each segment, or play on to the next</source>
        <translation>Jeden Abschnitt wiederholen oder mit dem nächsten fortfahren</translation>
    </message>
    <message>
        <source>Export the dictation as an LRC file</source>
        <translation>Diktat als LRC-Datei exportieren</translation>
    </message>
    <message>
        <source>Open the preferences</source>
        <translation>Einstellungen öffnen</translation>
    </message>
    <message>
        <source>Import a dictation from an LRC file</source>
        <translation>Diktat aus einer LRC-Datei importieren</translation>
    </message>
    <message>
        <source>Clear the dictation</source>
        <translation>Diktat löschen</translation>
    </message>
    <message>
        <source>Open a file from your music folder</source>
        <translation>Datei aus Ihrem Musikordner öffnen</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>Werkzeugleiste</translation>
    </message>
    <message>
        <source>Status bar</source>
        <translation>Statusleiste</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Darstellung</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Shortest segment (seconds)</source>
        <translation>Kürzester Abschnitt (Sekunden)</translation>
    </message>
    <message>
        <source>Play speed</source>
        <translation>Wiedergabegeschwindigkeit</translation>
    </message>
    <message>
        <source>Plays of each segment in repeat mode</source>
        <translation>Wiedergaben je Abschnitt im Wiederholmodus</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>A new language shows after a restart.</source>
        <translation>Eine neue Sprache erscheint nach einem Neustart.</translation>
    </message>
    <message>
        <source>Table background</source>
        <translation>Tabellenhintergrund</translation>
    </message>
    <message>
        <source>Text colour</source>
        <translation>Textfarbe</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Schrift</translation>
    </message>
    <message>
        <source>Show line numbers</source>
        <translation>Zeilennummern anzeigen</translation>
    </message>
    <message>
        <source>Show the waveform</source>
        <translation>Wellenform anzeigen</translation>
    </message>
    <message>
        <source>Show the status bar</source>
        <translation>Statusleiste anzeigen</translation>
    </message>
    <message>
        <source>Previous segment</source>
        <translation>Vorheriger Abschnitt</translation>
    </message>
    <message>
        <source>Next segment</source>
        <translation>Nächster Abschnitt</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>Wiedergabe oder Pause</translation>
    </message>
    <message>
        <source>Repeat mode</source>
        <translation>Wiederholmodus</translation>
    </message>
    <message>
        <source>First segment</source>
        <translation>Erster Abschnitt</translation>
    </message>
    <message>
        <source>Split the audio again</source>
        <translation>Audio neu aufteilen</translation>
    </message>
    <message>
        <source>Click a field and press the new key. Click elsewhere to finish.</source>
        <translation>Klicken Sie auf ein Feld und drücken Sie die neue Taste. Klicken Sie zum Abschließen woanders hin.</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <translation>Auf Standardwerte zurücksetzen</translation>
    </message>
    <message>
        <source>Choose the dictation font</source>
        <translation>Schrift des Diktats wählen</translation>
    </message>
    <message>
        <source>Transcripts</source>
        <translation>Transkripte</translation>
    </message>
    <message>
        <source>The lesson is still being analysed. Import the dictation once it has opened.</source>
        <translation>Die Lektion wird noch analysiert. Importieren Sie das Diktat, sobald sie geöffnet ist.</translation>
    </message>
    <message>
        <source>Open a recording with %@ or drop it here</source>
        <translation>Öffnen Sie eine Aufnahme mit %@ oder ziehen Sie sie hierher</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Playback</source>
        <translation>&amp;Wiedergabe</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Import Dictation…</source>
        <translation>Diktat &amp;importieren…</translation>
    </message>
    <message>
        <source>Import from &amp;Music Folder…</source>
        <translation>Aus dem &amp;Musikordner öffnen…</translation>
    </message>
    <message>
        <source>&amp;Clear Dictation…</source>
        <translation>Diktat &amp;löschen…</translation>
    </message>
    <message>
        <source>&amp;Play/Pause</source>
        <translation>&amp;Wiedergabe/Pause</translation>
    </message>
    <message>
        <source>Pre&amp;vious Segment</source>
        <translation>&amp;Vorheriger Abschnitt</translation>
    </message>
    <message>
        <source>&amp;Next Segment</source>
        <translation>&amp;Nächster Abschnitt</translation>
    </message>
    <message>
        <source>&amp;Repeat Mode</source>
        <translation>Wieder&amp;holmodus</translation>
    </message>
    <message>
        <source>&amp;First Segment</source>
        <translation>&amp;Erster Abschnitt</translation>
    </message>
    <message>
        <source>&amp;Split the Audio Again</source>
        <translation>Audio neu &amp;aufteilen</translation>
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
        <translation>Kurzanleitung:

1. Audiodatei öffnen: %@
2. Wiedergabe/Pause: %@
3. Nächster Abschnitt: %@
4. Vorheriger Abschnitt: %@
5. Wiederholmodus: %@
6. Erster Abschnitt: %@
7. Audio neu aufteilen: %@
8. Diktat exportieren: %@

Bei Fragen schreiben Sie mir eine E-Mail: support@kelmora.app.</translation>
    </message>
    <message>
        <source>&amp;Attach Reference Text…</source>
        <translation>&amp;Referenztext anhängen…</translation>
    </message>
    <message>
        <source>Remo&amp;ve Reference Text</source>
        <translation>Referenztext en&amp;tfernen</translation>
    </message>
    <message>
        <source>Chec&amp;k Segment</source>
        <translation>Abschnitt &amp;prüfen</translation>
    </message>
    <message>
        <source>Show Next &amp;Word</source>
        <translation>Nächstes W&amp;ort zeigen</translation>
    </message>
    <message>
        <source>Reference</source>
        <translation>Referenz</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>Prüfen</translation>
    </message>
    <message>
        <source>Attach the lesson&apos;s text (.txt, .srt, .vtt or .lrc) to check your typing</source>
        <translation>Den Text der Lektion anhängen (.txt, .srt, .vtt oder .lrc), um Ihre Eingabe zu prüfen</translation>
    </message>
    <message>
        <source>Check the current segment against the reference text</source>
        <translation>Den aktuellen Abschnitt mit dem Referenztext vergleichen</translation>
    </message>
    <message>
        <source>Reference Texts</source>
        <translation>Referenztexte</translation>
    </message>
    <message>
        <source>Cannot Read Reference Text</source>
        <translation>Referenztext kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Cannot Store Reference Text</source>
        <translation>Referenztext kann nicht gespeichert werden</translation>
    </message>
    <message>
        <source>“%@” could not be read.</source>
        <translation>„%@“ konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <source>“%@” is not a .txt, .srt, .vtt or .lrc file.</source>
        <translation>„%@“ ist keine .txt-, .srt-, .vtt- oder .lrc-Datei.</translation>
    </message>
    <message>
        <source>“%@” is larger than 16 MB.</source>
        <translation>„%@“ ist größer als 16 MB.</translation>
    </message>
    <message>
        <source>“%@” is not a text file.</source>
        <translation>„%@“ ist keine Textdatei.</translation>
    </message>
    <message>
        <source>“%@” is not UTF-8 text.</source>
        <translation>„%@“ ist kein UTF-8-Text.</translation>
    </message>
    <message>
        <source>“%@” is empty.</source>
        <translation>„%@“ ist leer.</translation>
    </message>
    <message>
        <source>“%@” does not start with WEBVTT.</source>
        <translation>„%@“ beginnt nicht mit WEBVTT.</translation>
    </message>
    <message>
        <source>“%@” has no text within the recording.</source>
        <translation>„%@“ enthält keinen Text innerhalb der Aufnahme.</translation>
    </message>
    <message>
        <source>Press %@ to check this segment.</source>
        <translation>Drücken Sie %@, um diesen Abschnitt zu prüfen.</translation>
    </message>
    <message>
        <source>Next word: %@</source>
        <translation>Nächstes Wort: %@</translation>
    </message>
    <message>
        <source>Every word is typed.</source>
        <translation>Alle Wörter sind getippt.</translation>
    </message>
    <message>
        <source>No reference words for this segment.</source>
        <translation>Keine Referenzwörter für diesen Abschnitt.</translation>
    </message>
    <message>
        <source>No mistakes.</source>
        <translation>Keine Fehler.</translation>
    </message>
    <message>
        <source>1 mistake: %@.</source>
        <translation>1 Fehler: %@.</translation>
    </message>
    <message>
        <source>%@ mistakes: %@.</source>
        <translation>%@ Fehler: %@.</translation>
    </message>
    <message>
        <source>&apos;%@&apos; should be &apos;%@&apos;</source>
        <translation>‚%@‘ statt ‚%@‘</translation>
    </message>
    <message>
        <source>missing &apos;%@&apos;</source>
        <translation>‚%@‘ fehlt</translation>
    </message>
    <message>
        <source>extra &apos;%@&apos;</source>
        <translation>‚%@‘ zu viel</translation>
    </message>
    <message>
        <source>Segment %@</source>
        <translation>Abschnitt %@</translation>
    </message>
    <message>
        <source>lesson %@</source>
        <translation>Lektion %@</translation>
    </message>
    <message>
        <source>Lesson %@</source>
        <translation>Lektion %@</translation>
    </message>
    <message>
        <source>Checked: no mistakes</source>
        <translation>Geprüft: keine Fehler</translation>
    </message>
    <message>
        <source>Checked: typos only</source>
        <translation>Geprüft: nur Tippfehler</translation>
    </message>
    <message>
        <source>Checked: mistakes</source>
        <translation>Geprüft: Fehler</translation>
    </message>
    <message>
        <source>Checking</source>
        <translation>Prüfung</translation>
    </message>
    <message>
        <source>Count punctuation</source>
        <translation>Satzzeichen zählen</translation>
    </message>
    <message>
        <source>Typo weight:</source>
        <translation>Gewicht von Tippfehlern:</translation>
    </message>
    <message>
        <source>Count case</source>
        <translation>Groß-/Kleinschreibung zählen</translation>
    </message>
    <message>
        <source>Check as I type</source>
        <translation>Beim Tippen prüfen</translation>
    </message>
    <message>
        <source>Check segment</source>
        <translation>Abschnitt prüfen</translation>
    </message>
    <message>
        <source>Show next word</source>
        <translation>Nächstes Wort zeigen</translation>
    </message>
    <message>
        <source>Recovered typing from your last session</source>
        <translation>Eingaben aus der letzten Sitzung wiederhergestellt</translation>
    </message>
    <message>
        <source>Typing since the last save is not protected: the journal cannot be written</source>
        <translation>Eingaben seit dem letzten Speichern sind nicht gesichert: Das Journal kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>Your typing could not be saved to disk; Kelmora will try again at the next save</source>
        <translation>Deine Eingaben konnten nicht auf der Festplatte gespeichert werden; Kelmora versucht es beim nächsten Speichern erneut</translation>
    </message>
    <message>
        <source>The last save failed: what you typed since then may not be on disk.</source>
        <translation>Das letzte Speichern ist fehlgeschlagen: Was du seitdem getippt hast, ist möglicherweise nicht auf der Festplatte.</translation>
    </message>
    <message>
        <source>The transcript is larger than 16 MB and was not read.</source>
        <translation>Das Transkript ist größer als 16 MB und wurde nicht gelesen.</translation>
    </message>
    <message>
        <source>The transcript is not a regular file and was not read.</source>
        <translation>Das Transkript ist keine reguläre Datei und wurde nicht gelesen.</translation>
    </message>
    <message>
        <source>Recover Earlier &amp;Dictation…</source>
        <translation>Frühere &amp;Diktate wiederherstellen…</translation>
    </message>
    <message>
        <source>A saved dictation that could not be used was set aside; File → Recover Earlier Dictation… brings it back</source>
        <translation>Ein gespeichertes Diktat, das nicht verwendet werden konnte, wurde beiseitegelegt; Datei → Frühere Diktate wiederherstellen… holt es zurück</translation>
    </message>
    <message>
        <source>Recover Earlier Dictation</source>
        <translation>Frühere Diktate wiederherstellen</translation>
    </message>
    <message>
        <source>Versions of this lesson&apos;s dictation that were set aside, newest first:</source>
        <translation>Beiseitegelegte Fassungen des Diktats dieser Lektion, neueste zuerst:</translation>
    </message>
    <message>
        <source>Recover</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>No earlier dictation of this recording was set aside.</source>
        <translation>Für diese Aufnahme wurde kein früheres Diktat beiseitegelegt.</translation>
    </message>
    <message>
        <source>A saved dictation that could not be used could not be set aside; it is not saved over</source>
        <translation>Ein gespeichertes Diktat, das nicht verwendet werden konnte, ließ sich nicht beiseitelegen; es wird nicht überschrieben</translation>
    </message>
    <message>
        <source>Kelmora found a dictation typed for this recording at %1 (last saved %2). Use it?</source>
        <translation>Kelmora hat ein Diktat gefunden, das zu dieser Aufnahme unter %1 getippt wurde (zuletzt gespeichert %2). Verwenden?</translation>
    </message>
    <message>
        <source>Use It</source>
        <translation>Verwenden</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Nicht jetzt</translation>
    </message>
    <message>
        <source>Spli&amp;t Segment at Play Head</source>
        <translation>Abschnitt an der Wiedergabeposition &amp;teilen</translation>
    </message>
    <message>
        <source>&amp;Merge with Next Segment</source>
        <translation>Mit dem nächsten Abschnitt &amp;zusammenführen</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>&amp;Undo %@</source>
        <translation>&amp;Rückgängig: %@</translation>
    </message>
    <message>
        <source>&amp;Redo %@</source>
        <translation>&amp;Wiederherstellen: %@</translation>
    </message>
    <message>
        <source>Split Segment</source>
        <translation>Abschnitt teilen</translation>
    </message>
    <message>
        <source>Merge Segments</source>
        <translation>Abschnitte zusammenführen</translation>
    </message>
    <message>
        <source>Move Boundary</source>
        <translation>Grenze verschieben</translation>
    </message>
    <message>
        <source>Clear Dictation</source>
        <translation>Diktat löschen</translation>
    </message>
    <message>
        <source>Import Dictation</source>
        <translation>Diktat importieren</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>Teilen</translation>
    </message>
    <message>
        <source>Split the segment in two at the play head</source>
        <translation>Abschnitt an der Wiedergabeposition in zwei Teile teilen</translation>
    </message>
    <message>
        <source>Nothing was split: each part of a segment must be at least 0.1 seconds long</source>
        <translation>Nichts wurde geteilt: Jeder Teil eines Abschnitts muss mindestens 0,1 Sekunden lang sein</translation>
    </message>
    <message>
        <source>Move Segment Start &amp;Earlier</source>
        <translation>Abschnittsbeginn &amp;früher setzen</translation>
    </message>
    <message>
        <source>Move Segment Start &amp;Later</source>
        <translation>Abschnittsbeginn &amp;später setzen</translation>
    </message>
    <message>
        <source>Split segment</source>
        <translation>Abschnitt teilen</translation>
    </message>
    <message>
        <source>Merge with next</source>
        <translation>Mit dem nächsten zusammenführen</translation>
    </message>
    <message>
        <source>Practice</source>
        <translation>Übung</translation>
    </message>
    <message>
        <source>Pause after each repetition:</source>
        <translation>Pause nach jeder Wiederholung:</translation>
    </message>
    <message>
        <source>Play the first repetition slower</source>
        <translation>Erste Wiederholung langsamer abspielen</translation>
    </message>
    <message>
        <source>Step back when playing resumes:</source>
        <translation>Beim Fortsetzen zurückspringen um:</translation>
    </message>
    <message>
        <source>Play only while the play key is held</source>
        <translation>Nur bei gehaltener Wiedergabetaste spielen</translation>
    </message>
    <message>
        <source>A sentence is hard below:</source>
        <translation>Ein Satz gilt als schwer unter:</translation>
    </message>
    <message>
        <source>s</source>
        <translation>s</translation>
    </message>
    <message>
        <source>Until I move on</source>
        <translation>Bis ich weitergehe</translation>
    </message>
    <message>
        <source>Practise &amp;Hard Sentences</source>
        <translation>&amp;Schwierige Sätze üben</translation>
    </message>
    <message>
        <source>Practise hard sentences</source>
        <translation>Schwierige Sätze üben</translation>
    </message>
    <message>
        <source>Hard sentences: %d left</source>
        <translation>Schwierige Sätze: noch %d</translation>
    </message>
    <message>
        <source>No hard sentences in this lesson</source>
        <translation>Keine schwierigen Sätze in dieser Lektion</translation>
    </message>
    <message>
        <source>%d due for review</source>
        <translation>%d zur Wiederholung fällig</translation>
    </message>
    <message>
        <source>Checked once</source>
        <translation>Einmal geprüft</translation>
    </message>
    <message>
        <source>Checked %d times</source>
        <translation>%d-mal geprüft</translation>
    </message>
    <message>
        <source>1 hint</source>
        <translation>1 Hinweis</translation>
    </message>
    <message>
        <source>%d hints</source>
        <translation>%d Hinweise</translation>
    </message>
    <message>
        <source>last %@, best %@</source>
        <translation>zuletzt %@, bestes %@</translation>
    </message>
    <message>
        <source>%d min %d s</source>
        <translation>%d Min. %d Sek.</translation>
    </message>
    <message>
        <source>%d s</source>
        <translation>%d Sek.</translation>
    </message>
    <message>
        <source>Your practice record could not be saved: %@</source>
        <translation>Dein Übungsverlauf konnte nicht gespeichert werden: %@</translation>
    </message>
    <message>
        <source>Your practice record could not be read and is not saved over: %@</source>
        <translation>Dein Übungsverlauf konnte nicht gelesen werden und wird nicht überschrieben: %@</translation>
    </message>
    <message>
        <source>Cut Segments at &amp;Sentences</source>
        <translation>Abschnitte an Sätzen sc&amp;hneiden</translation>
    </message>
    <message>
        <source>Cut at Sentences</source>
        <translation>An Sätzen schneiden</translation>
    </message>
    <message>
        <source>Segments now: %d</source>
        <translation>Abschnitte jetzt: %d</translation>
    </message>
    <message>
        <source>Uncertain segment starts: %@</source>
        <translation>Unsichere Abschnittsanfänge: %@</translation>
    </message>
    <message>
        <source>&amp;Align Again…</source>
        <translation>Erneut a&amp;usrichten…</translation>
    </message>
    <message>
        <source>Align Reference Text</source>
        <translation>Referenztext ausrichten</translation>
    </message>
    <message>
        <source>Kelmora can place each sentence of “%@” on the recording. Which language is the lesson in?</source>
        <translation>Kelmora kann jeden Satz von „%@“ in der Aufnahme verorten. In welcher Sprache ist die Lektion?</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Sprache:</translation>
    </message>
    <message>
        <source>Align</source>
        <translation>Ausrichten</translation>
    </message>
    <message>
        <source>Don’t Align</source>
        <translation>Nicht ausrichten</translation>
    </message>
    <message>
        <source>Placing the sentences on the recording…</source>
        <translation>Die Sätze werden in der Aufnahme verortet…</translation>
    </message>
    <message>
        <source>Aligned %d sentences, %d uncertain</source>
        <translation>%d Sätze ausgerichtet, %d unsicher</translation>
    </message>
    <message>
        <source>The reference text could not be aligned</source>
        <translation>Der Referenztext konnte nicht ausgerichtet werden</translation>
    </message>
    <message>
        <source>%@ The reference text stays as it was.</source>
        <translation>%@ Der Referenztext bleibt, wie er war.</translation>
    </message>
</context>
</TS>
