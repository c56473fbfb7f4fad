<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Kelmora</source>
        <translation>Kelmora</translation>
    </message>
    <message>
        <source>No audio file opened</source>
        <translation>Aucun fichier audio ouvert</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Préférences</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Don&apos;t Save</source>
        <translation>Ne pas enregistrer</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Plus tard</translation>
    </message>
    <message>
        <source>Save Dictation?</source>
        <translation>Enregistrer la dictée ?</translation>
    </message>
    <message>
        <source>Do you want to save the dictation before closing?</source>
        <translation>Voulez-vous enregistrer la dictée avant de fermer ?</translation>
    </message>
    <message>
        <source>Error Opening File</source>
        <translation>Erreur lors de l&apos;ouverture du fichier</translation>
    </message>
    <message>
        <source>Invalid File Type</source>
        <translation>Type de fichier non valide</translation>
    </message>
    <message>
        <source>Please select a supported audio file</source>
        <translation>Veuillez sélectionner un fichier audio pris en charge</translation>
    </message>
    <message>
        <source>File Access Error</source>
        <translation>Erreur d&apos;accès au fichier</translation>
    </message>
    <message>
        <source>File Too Large</source>
        <translation>Fichier trop volumineux</translation>
    </message>
    <message>
        <source>Please select an audio file smaller than %llu MB</source>
        <translation>Veuillez sélectionner un fichier audio de moins de %llu Mo</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Failed to process audio file</source>
        <translation>Impossible de traiter le fichier audio</translation>
    </message>
    <message>
        <source>Please grant access to the folder containing your audio files</source>
        <translation>Veuillez autoriser l&apos;accès au dossier contenant vos fichiers audio</translation>
    </message>
    <message>
        <source>Grant Access</source>
        <translation>Autoriser l&apos;accès</translation>
    </message>
    <message>
        <source>Save Transcript</source>
        <translation>Enregistrer la transcription</translation>
    </message>
    <message>
        <source>Save Error</source>
        <translation>Erreur d&apos;enregistrement</translation>
    </message>
    <message>
        <source>Error writing to file</source>
        <translation>Erreur lors de l&apos;écriture du fichier</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>Please open an audio file first</source>
        <translation>Veuillez d&apos;abord ouvrir un fichier audio</translation>
    </message>
    <message>
        <source>Failed to load transcription</source>
        <translation>Impossible de charger la transcription</translation>
    </message>
    <message>
        <source>Invalid File</source>
        <translation>Fichier non valide</translation>
    </message>
    <message>
        <source>lyric duration is too long</source>
        <translation>la durée des paroles est trop longue</translation>
    </message>
    <message>
        <source>Are you sure to clear dictation?</source>
        <translation>Voulez-vous vraiment effacer la dictée ?</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Échantillons</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Segments</source>
        <translation>Segments</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Lecture</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>Répéter</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Continu</translation>
    </message>
    <message>
        <source>Segment</source>
        <translation>Segment</translation>
    </message>
    <message>
        <source>Dictation</source>
        <translation>Dictée</translation>
    </message>
    <message>
        <source>|Dictation</source>
        <translation>|Dictée</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Anglais</translation>
    </message>
    <message>
        <source>Chinese(Simplified)</source>
        <translation>Chinois (simplifié)</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>Espagnol</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>Japonais</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>Coréen</translation>
    </message>
    <message>
        <source>German</source>
        <translation>Allemand</translation>
    </message>
    <message>
        <source>French</source>
        <translation>Français</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation>Russe</translation>
    </message>
    <message>
        <source>Thai</source>
        <translation>Thaï</translation>
    </message>
    <message>
        <source>Vietnamese</source>
        <translation>Vietnamien</translation>
    </message>
    <message>
        <source>Input must not exceed 6 digits</source>
        <translation>La saisie ne doit pas dépasser 6 chiffres</translation>
    </message>
    <message>
        <source>Invalid input: %@</source>
        <translation>Saisie non valide : %@</translation>
    </message>
    <message>
        <source>Settings Reset</source>
        <translation>Réglages réinitialisés</translation>
    </message>
    <message>
        <source>All settings have been restored to their default values</source>
        <translation>Tous les réglages ont été rétablis à leurs valeurs par défaut</translation>
    </message>
    <message>
        <source>Warnning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>Please restart the app to apply the new language.</source>
        <translation>Veuillez redémarrer l&apos;application pour appliquer la nouvelle langue.</translation>
    </message>
    <message>
        <source>Restart Now</source>
        <translation>Redémarrer maintenant</translation>
    </message>
    <message>
        <source>Error checking for updates</source>
        <translation>Erreur lors de la recherche de mises à jour</translation>
    </message>
    <message>
        <source>Error parsing updates JSON</source>
        <translation>Erreur lors de l&apos;analyse du JSON des mises à jour</translation>
    </message>
    <message>
        <source>App is already the latest version</source>
        <translation>L&apos;application est déjà à jour</translation>
    </message>
    <message>
        <source>Update Available</source>
        <translation>Mise à jour disponible</translation>
    </message>
    <message>
        <source>Version %@ is available.

Release Notes:
%@</source>
        <translation>La version %@ est disponible.

Notes de version :
%@</translation>
    </message>
    <message>
        <source>No release notes available</source>
        <translation>Aucune note de version disponible</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Mettre à jour</translation>
    </message>
    <message>
        <source>Audio Files</source>
        <translation>Fichiers audio</translation>
    </message>
    <message>
        <source>Analysing audio</source>
        <translation>Analyse de l'audio en cours</translation>
    </message>
    <message>
        <source>Waveform</source>
        <translation>Forme d'onde</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Ouvrir…</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Ouvrir un fichier &amp;récent</translation>
    </message>
    <message>
        <source>&amp;Clear Menu</source>
        <translation>&amp;Effacer le menu</translation>
    </message>
    <message>
        <source>&amp;Export Dictation…</source>
        <translation>&amp;Exporter la dictée…</translation>
    </message>
    <message>
        <source>&amp;Quit Kelmora</source>
        <translation>&amp;Quitter Kelmora</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>&amp;Window Size</source>
        <translation>&amp;Taille de la fenêtre</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>&amp;Préférences…</translation>
    </message>
    <message>
        <source>&amp;Check for Updates…</source>
        <translation>Rechercher des &amp;mises à jour…</translation>
    </message>
    <message>
        <source>Kelmora &amp;Help</source>
        <translation>&amp;Aide de Kelmora</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Play/Pause</source>
        <translation>Lecture/Pause</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exporter</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importer</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Musique</translation>
    </message>
    <message>
        <source>Open an audio file</source>
        <translation>Ouvrir un fichier audio</translation>
    </message>
    <message>
        <source>Play or pause the current segment</source>
        <translation>Lire ou mettre en pause le segment actuel</translation>
    </message>
    <message>
        <source>Repeat each segment, or play on to the next</source>
        <translation>Répéter chaque segment ou enchaîner avec le suivant</translation>
    </message>
    <message>
        <source>Export the dictation as an LRC file</source>
        <translation>Exporter la dictée sous forme de fichier LRC</translation>
    </message>
    <message>
        <source>Open the preferences</source>
        <translation>Ouvrir les préférences</translation>
    </message>
    <message>
        <source>Import a dictation from an LRC file</source>
        <translation>Importer une dictée depuis un fichier LRC</translation>
    </message>
    <message>
        <source>Clear the dictation</source>
        <translation>Effacer la dictée</translation>
    </message>
    <message>
        <source>Open a file from your music folder</source>
        <translation>Ouvrir un fichier de votre dossier Musique</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>Barre d'outils</translation>
    </message>
    <message>
        <source>Status bar</source>
        <translation>Barre d'état</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Apparence</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>Raccourcis</translation>
    </message>
    <message>
        <source>Shortest segment (seconds)</source>
        <translation>Segment le plus court (secondes)</translation>
    </message>
    <message>
        <source>Play speed</source>
        <translation>Vitesse de lecture</translation>
    </message>
    <message>
        <source>Plays of each segment in repeat mode</source>
        <translation>Lectures de chaque segment en mode répétition</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>A new language shows after a restart.</source>
        <translation>La nouvelle langue s’affiche après un redémarrage.</translation>
    </message>
    <message>
        <source>Table background</source>
        <translation>Fond du tableau</translation>
    </message>
    <message>
        <source>Text colour</source>
        <translation>Couleur du texte</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Police</translation>
    </message>
    <message>
        <source>Show line numbers</source>
        <translation>Afficher les numéros de ligne</translation>
    </message>
    <message>
        <source>Show the waveform</source>
        <translation>Afficher la forme d’onde</translation>
    </message>
    <message>
        <source>Show the status bar</source>
        <translation>Afficher la barre d’état</translation>
    </message>
    <message>
        <source>Previous segment</source>
        <translation>Segment précédent</translation>
    </message>
    <message>
        <source>Next segment</source>
        <translation>Segment suivant</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>Lecture ou pause</translation>
    </message>
    <message>
        <source>Repeat mode</source>
        <translation>Mode répétition</translation>
    </message>
    <message>
        <source>First segment</source>
        <translation>Premier segment</translation>
    </message>
    <message>
        <source>Split the audio again</source>
        <translation>Redécouper l’audio</translation>
    </message>
    <message>
        <source>Click a field and press the new key. Click elsewhere to finish.</source>
        <translation>Cliquez sur un champ puis appuyez sur la nouvelle touche. Cliquez ailleurs pour terminer.</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <translation>Rétablir les réglages par défaut</translation>
    </message>
    <message>
        <source>Choose the dictation font</source>
        <translation>Choisir la police de la dictée</translation>
    </message>
    <message>
        <source>Transcripts</source>
        <translation>Transcriptions</translation>
    </message>
    <message>
        <source>The lesson is still being analysed. Import the dictation once it has opened.</source>
        <translation>La leçon est encore en cours d'analyse. Importez la dictée une fois qu'elle est ouverte.</translation>
    </message>
    <message>
        <source>Open a recording with %@ or drop it here</source>
        <translation>Ouvrez un enregistrement avec %@ ou déposez-le ici</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>&amp;Playback</source>
        <translation>&amp;Lecture</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;ide</translation>
    </message>
    <message>
        <source>&amp;Import Dictation…</source>
        <translation>&amp;Importer une dictée…</translation>
    </message>
    <message>
        <source>Import from &amp;Music Folder…</source>
        <translation>Ouvrir depuis le dossier &amp;Musique…</translation>
    </message>
    <message>
        <source>&amp;Clear Dictation…</source>
        <translation>Effacer la &amp;dictée…</translation>
    </message>
    <message>
        <source>&amp;Play/Pause</source>
        <translation>&amp;Lecture/Pause</translation>
    </message>
    <message>
        <source>Pre&amp;vious Segment</source>
        <translation>Segment &amp;précédent</translation>
    </message>
    <message>
        <source>&amp;Next Segment</source>
        <translation>Segment &amp;suivant</translation>
    </message>
    <message>
        <source>&amp;Repeat Mode</source>
        <translation>Mode &amp;répétition</translation>
    </message>
    <message>
        <source>&amp;First Segment</source>
        <translation>Premier se&amp;gment</translation>
    </message>
    <message>
        <source>&amp;Split the Audio Again</source>
        <translation>Re&amp;découper l’audio</translation>
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
        <translation>Aide rapide :

1. Ouvrir un fichier audio : %@
2. Lecture/Pause : %@
3. Segment suivant : %@
4. Segment précédent : %@
5. Mode répétition : %@
6. Premier segment : %@
7. Redécouper l’audio : %@
8. Exporter la dictée : %@

Pour toute question, écrivez-moi à : support@kelmora.app.</translation>
    </message>
    <message>
        <source>&amp;Attach Reference Text…</source>
        <translation>Joindre un &amp;texte de référence…</translation>
    </message>
    <message>
        <source>Remo&amp;ve Reference Text</source>
        <translation>Retirer le te&amp;xte de référence</translation>
    </message>
    <message>
        <source>Chec&amp;k Segment</source>
        <translation>&amp;Vérifier le segment</translation>
    </message>
    <message>
        <source>Show Next &amp;Word</source>
        <translation>Afficher le mot s&amp;uivant</translation>
    </message>
    <message>
        <source>Reference</source>
        <translation>Référence</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>Vérifier</translation>
    </message>
    <message>
        <source>Attach the lesson&apos;s text (.txt, .srt, .vtt or .lrc) to check your typing</source>
        <translation>Joindre le texte de la leçon (.txt, .srt, .vtt ou .lrc) pour vérifier votre saisie</translation>
    </message>
    <message>
        <source>Check the current segment against the reference text</source>
        <translation>Vérifier le segment actuel d’après le texte de référence</translation>
    </message>
    <message>
        <source>Reference Texts</source>
        <translation>Textes de référence</translation>
    </message>
    <message>
        <source>Cannot Read Reference Text</source>
        <translation>Impossible de lire le texte de référence</translation>
    </message>
    <message>
        <source>Cannot Store Reference Text</source>
        <translation>Impossible d’enregistrer le texte de référence</translation>
    </message>
    <message>
        <source>“%@” could not be read.</source>
        <translation>Impossible de lire « %@ ».</translation>
    </message>
    <message>
        <source>“%@” is not a .txt, .srt, .vtt or .lrc file.</source>
        <translation>« %@ » n’est pas un fichier .txt, .srt, .vtt ou .lrc.</translation>
    </message>
    <message>
        <source>“%@” is larger than 16 MB.</source>
        <translation>« %@ » dépasse 16 Mo.</translation>
    </message>
    <message>
        <source>“%@” is not a text file.</source>
        <translation>« %@ » n’est pas un fichier texte.</translation>
    </message>
    <message>
        <source>“%@” is not UTF-8 text.</source>
        <translation>« %@ » n’est pas du texte UTF-8.</translation>
    </message>
    <message>
        <source>“%@” is empty.</source>
        <translation>« %@ » est vide.</translation>
    </message>
    <message>
        <source>“%@” does not start with WEBVTT.</source>
        <translation>« %@ » ne commence pas par WEBVTT.</translation>
    </message>
    <message>
        <source>“%@” has no text within the recording.</source>
        <translation>« %@ » ne contient aucun texte dans la durée de l’enregistrement.</translation>
    </message>
    <message>
        <source>Press %@ to check this segment.</source>
        <translation>Appuyez sur %@ pour vérifier ce segment.</translation>
    </message>
    <message>
        <source>Next word: %@</source>
        <translation>Mot suivant : %@</translation>
    </message>
    <message>
        <source>Every word is typed.</source>
        <translation>Tous les mots sont saisis.</translation>
    </message>
    <message>
        <source>No reference words for this segment.</source>
        <translation>Aucun mot de référence pour ce segment.</translation>
    </message>
    <message>
        <source>No mistakes.</source>
        <translation>Aucune faute.</translation>
    </message>
    <message>
        <source>1 mistake: %@.</source>
        <translation>1 faute : %@.</translation>
    </message>
    <message>
        <source>%@ mistakes: %@.</source>
        <translation>%@ fautes : %@.</translation>
    </message>
    <message>
        <source>&apos;%@&apos; should be &apos;%@&apos;</source>
        <translation>« %@ » au lieu de « %@ »</translation>
    </message>
    <message>
        <source>missing &apos;%@&apos;</source>
        <translation>« %@ » manquant</translation>
    </message>
    <message>
        <source>extra &apos;%@&apos;</source>
        <translation>« %@ » en trop</translation>
    </message>
    <message>
        <source>Segment %@</source>
        <translation>Segment : %@</translation>
    </message>
    <message>
        <source>lesson %@</source>
        <translation>leçon : %@</translation>
    </message>
    <message>
        <source>Lesson %@</source>
        <translation>Leçon : %@</translation>
    </message>
    <message>
        <source>Checked: no mistakes</source>
        <translation>Vérifié : aucune faute</translation>
    </message>
    <message>
        <source>Checked: typos only</source>
        <translation>Vérifié : fautes de frappe seulement</translation>
    </message>
    <message>
        <source>Checked: mistakes</source>
        <translation>Vérifié : fautes</translation>
    </message>
    <message>
        <source>Checking</source>
        <translation>Vérification</translation>
    </message>
    <message>
        <source>Count punctuation</source>
        <translation>Compter la ponctuation</translation>
    </message>
    <message>
        <source>Typo weight:</source>
        <translation>Poids des fautes de frappe :</translation>
    </message>
    <message>
        <source>Count case</source>
        <translation>Tenir compte de la casse</translation>
    </message>
    <message>
        <source>Check as I type</source>
        <translation>Vérifier pendant la saisie</translation>
    </message>
    <message>
        <source>Check segment</source>
        <translation>Vérifier le segment</translation>
    </message>
    <message>
        <source>Show next word</source>
        <translation>Afficher le mot suivant</translation>
    </message>
    <message>
        <source>Recovered typing from your last session</source>
        <translation>Saisie de la dernière session récupérée</translation>
    </message>
    <message>
        <source>Typing since the last save is not protected: the journal cannot be written</source>
        <translation>La saisie depuis le dernier enregistrement n’est pas protégée : le journal ne peut pas être écrit</translation>
    </message>
    <message>
        <source>Your typing could not be saved to disk; Kelmora will try again at the next save</source>
        <translation>Votre saisie n’a pas pu être enregistrée sur le disque ; Kelmora réessaiera au prochain enregistrement</translation>
    </message>
    <message>
        <source>The last save failed: what you typed since then may not be on disk.</source>
        <translation>Le dernier enregistrement a échoué : ce que vous avez tapé depuis n’est peut-être pas sur le disque.</translation>
    </message>
    <message>
        <source>The transcript is larger than 16 MB and was not read.</source>
        <translation>La transcription dépasse 16 Mo et n’a pas été lue.</translation>
    </message>
    <message>
        <source>The transcript is not a regular file and was not read.</source>
        <translation>La transcription n’est pas un fichier ordinaire et n’a pas été lue.</translation>
    </message>
    <message>
        <source>Recover Earlier &amp;Dictation…</source>
        <translation>Récupérer une &amp;dictée antérieure…</translation>
    </message>
    <message>
        <source>A saved dictation that could not be used was set aside; File → Recover Earlier Dictation… brings it back</source>
        <translation>Une dictée enregistrée inutilisable a été mise de côté ; Fichier → Récupérer une dictée antérieure… la rétablit</translation>
    </message>
    <message>
        <source>Recover Earlier Dictation</source>
        <translation>Récupérer une dictée antérieure</translation>
    </message>
    <message>
        <source>Versions of this lesson&apos;s dictation that were set aside, newest first:</source>
        <translation>Versions mises de côté de la dictée de cette leçon, de la plus récente à la plus ancienne :</translation>
    </message>
    <message>
        <source>Recover</source>
        <translation>Récupérer</translation>
    </message>
    <message>
        <source>No earlier dictation of this recording was set aside.</source>
        <translation>Aucune dictée antérieure de cet enregistrement n’a été mise de côté.</translation>
    </message>
    <message>
        <source>A saved dictation that could not be used could not be set aside; it is not saved over</source>
        <translation>Une dictée enregistrée inutilisable n’a pas pu être mise de côté ; elle n’est pas écrasée</translation>
    </message>
    <message>
        <source>Kelmora found a dictation typed for this recording at %1 (last saved %2). Use it?</source>
        <translation>Kelmora a trouvé une dictée tapée pour cet enregistrement à l’emplacement %1 (dernier enregistrement : %2). L’utiliser ?</translation>
    </message>
    <message>
        <source>Use It</source>
        <translation>L’utiliser</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Pas maintenant</translation>
    </message>
    <message>
        <source>Spli&amp;t Segment at Play Head</source>
        <translation>D&amp;iviser le segment à la tête de lecture</translation>
    </message>
    <message>
        <source>&amp;Merge with Next Segment</source>
        <translation>&amp;Fusionner avec le segment suivant</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>&amp;Undo %@</source>
        <translation>&amp;Annuler : %@</translation>
    </message>
    <message>
        <source>&amp;Redo %@</source>
        <translation>&amp;Rétablir : %@</translation>
    </message>
    <message>
        <source>Split Segment</source>
        <translation>Diviser le segment</translation>
    </message>
    <message>
        <source>Merge Segments</source>
        <translation>Fusionner les segments</translation>
    </message>
    <message>
        <source>Move Boundary</source>
        <translation>Déplacer la limite</translation>
    </message>
    <message>
        <source>Clear Dictation</source>
        <translation>Effacer la dictée</translation>
    </message>
    <message>
        <source>Import Dictation</source>
        <translation>Importer une dictée</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>Diviser</translation>
    </message>
    <message>
        <source>Split the segment in two at the play head</source>
        <translation>Diviser le segment en deux à la tête de lecture</translation>
    </message>
    <message>
        <source>Nothing was split: each part of a segment must be at least 0.1 seconds long</source>
        <translation>Rien n’a été divisé : chaque partie d’un segment doit durer au moins 0,1 seconde</translation>
    </message>
    <message>
        <source>Move Segment Start &amp;Earlier</source>
        <translation>Ava&amp;ncer le début du segment</translation>
    </message>
    <message>
        <source>Move Segment Start &amp;Later</source>
        <translation>Re&amp;tarder le début du segment</translation>
    </message>
    <message>
        <source>Split segment</source>
        <translation>Diviser le segment</translation>
    </message>
    <message>
        <source>Merge with next</source>
        <translation>Fusionner avec le suivant</translation>
    </message>
    <message>
        <source>Practice</source>
        <translation>Entraînement</translation>
    </message>
    <message>
        <source>Pause after each repetition:</source>
        <translation>Pause après chaque répétition :</translation>
    </message>
    <message>
        <source>Play the first repetition slower</source>
        <translation>Lire la première répétition plus lentement</translation>
    </message>
    <message>
        <source>Step back when playing resumes:</source>
        <translation>Reculer à la reprise de la lecture :</translation>
    </message>
    <message>
        <source>Play only while the play key is held</source>
        <translation>Lire tant que la touche est enfoncée</translation>
    </message>
    <message>
        <source>A sentence is hard below:</source>
        <translation>Une phrase est difficile en dessous de :</translation>
    </message>
    <message>
        <source>s</source>
        <translation>s</translation>
    </message>
    <message>
        <source>Until I move on</source>
        <translation>Jusqu'à ce que je passe à la suite</translation>
    </message>
    <message>
        <source>Practise &amp;Hard Sentences</source>
        <translation>S’entraîner sur les phrases &amp;difficiles</translation>
    </message>
    <message>
        <source>Practise hard sentences</source>
        <translation>S’entraîner sur les phrases difficiles</translation>
    </message>
    <message>
        <source>Hard sentences: %d left</source>
        <translation>Phrases difficiles : encore %d</translation>
    </message>
    <message>
        <source>No hard sentences in this lesson</source>
        <translation>Aucune phrase difficile dans cette leçon</translation>
    </message>
    <message>
        <source>%d due for review</source>
        <translation>%d à réviser</translation>
    </message>
    <message>
        <source>Checked once</source>
        <translation>Vérifiée une fois</translation>
    </message>
    <message>
        <source>Checked %d times</source>
        <translation>Vérifiée %d fois</translation>
    </message>
    <message>
        <source>1 hint</source>
        <translation>1 indice</translation>
    </message>
    <message>
        <source>%d hints</source>
        <translation>%d indices</translation>
    </message>
    <message>
        <source>last %@, best %@</source>
        <translation>dernier %@, meilleur %@</translation>
    </message>
    <message>
        <source>%d min %d s</source>
        <translation>%d min %d s</translation>
    </message>
    <message>
        <source>%d s</source>
        <translation>%d s</translation>
    </message>
    <message>
        <source>Your practice record could not be saved: %@</source>
        <translation>Impossible d’enregistrer votre suivi d’entraînement : %@</translation>
    </message>
    <message>
        <source>Your practice record could not be read and is not saved over: %@</source>
        <translation>Impossible de lire votre suivi d’entraînement ; il ne sera pas écrasé : %@</translation>
    </message>
    <message>
        <source>Cut Segments at &amp;Sentences</source>
        <translation>&amp;Couper les segments aux phrases</translation>
    </message>
    <message>
        <source>Cut at Sentences</source>
        <translation>Couper aux phrases</translation>
    </message>
    <message>
        <source>Segments now: %d</source>
        <translation>Segments maintenant : %d</translation>
    </message>
    <message>
        <source>Uncertain segment starts: %@</source>
        <translation>Débuts de segment incertains : %@</translation>
    </message>
    <message>
        <source>&amp;Align Again…</source>
        <translation>A&amp;ligner à nouveau…</translation>
    </message>
    <message>
        <source>Align Reference Text</source>
        <translation>Aligner le texte de référence</translation>
    </message>
    <message>
        <source>Kelmora can place each sentence of “%@” on the recording. Which language is the lesson in?</source>
        <translation>Kelmora peut placer chaque phrase de « %@ » sur l’enregistrement. En quelle langue est la leçon ?</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Langue :</translation>
    </message>
    <message>
        <source>Align</source>
        <translation>Aligner</translation>
    </message>
    <message>
        <source>Don’t Align</source>
        <translation>Ne pas aligner</translation>
    </message>
    <message>
        <source>Placing the sentences on the recording…</source>
        <translation>Placement des phrases sur l’enregistrement…</translation>
    </message>
    <message>
        <source>Aligned %d sentences, %d uncertain</source>
        <translation>%d phrases alignées, %d incertaines</translation>
    </message>
    <message>
        <source>The reference text could not be aligned</source>
        <translation>Impossible d’aligner le texte de référence</translation>
    </message>
    <message>
        <source>%@ The reference text stays as it was.</source>
        <translation>%@ Le texte de référence reste tel qu’il était.</translation>
    </message>
</context>
</TS>
