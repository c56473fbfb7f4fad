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
        <source>Quick Help Guide:

1. Open Audio File: Command + O
2. Play/Pause: Enter
3. Next Segment: Down Arrow
4. Previous Segment: Up Arrow
5. Repeat Mode: Control+ R
6. Save Dictation: Command + S

If you have any questions, email me: support@kelmora.app.</source>
        <translation>Kurzanleitung:

1. Audiodatei öffnen: Command + O
2. Wiedergabe/Pause: Enter
3. Nächster Abschnitt: Pfeil nach unten
4. Vorheriger Abschnitt: Pfeil nach oben
5. Wiederholmodus: Control+ R
6. Diktat speichern: Command + S

Bei Fragen schreiben Sie mir eine E-Mail: support@kelmora.app.</translation>
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
</context>
</TS>
