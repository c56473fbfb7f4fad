<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Kelmora</source>
        <translation>Kelmora</translation>
    </message>
    <message>
        <source>No audio file opened</source>
        <translation>No hay ningún archivo de audio abierto</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Preferencias</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Don&apos;t Save</source>
        <translation>No guardar</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Más tarde</translation>
    </message>
    <message>
        <source>Save Dictation?</source>
        <translation>¿Guardar el dictado?</translation>
    </message>
    <message>
        <source>Do you want to save the dictation before closing?</source>
        <translation>¿Quieres guardar el dictado antes de cerrar?</translation>
    </message>
    <message>
        <source>Error Opening File</source>
        <translation>Error al abrir el archivo</translation>
    </message>
    <message>
        <source>Invalid File Type</source>
        <translation>Tipo de archivo no válido</translation>
    </message>
    <message>
        <source>Please select a supported audio file</source>
        <translation>Selecciona un archivo de audio compatible</translation>
    </message>
    <message>
        <source>File Access Error</source>
        <translation>Error de acceso al archivo</translation>
    </message>
    <message>
        <source>File Too Large</source>
        <translation>Archivo demasiado grande</translation>
    </message>
    <message>
        <source>Please select an audio file smaller than %llu MB</source>
        <translation>Selecciona un archivo de audio de menos de %llu MB</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Failed to process audio file</source>
        <translation>No se pudo procesar el archivo de audio</translation>
    </message>
    <message>
        <source>Please grant access to the folder containing your audio files</source>
        <translation>Concede acceso a la carpeta que contiene tus archivos de audio</translation>
    </message>
    <message>
        <source>Grant Access</source>
        <translation>Conceder acceso</translation>
    </message>
    <message>
        <source>Save Transcript</source>
        <translation>Guardar transcripción</translation>
    </message>
    <message>
        <source>Save Error</source>
        <translation>Error al guardar</translation>
    </message>
    <message>
        <source>Error writing to file</source>
        <translation>Error al escribir en el archivo</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Advertencia</translation>
    </message>
    <message>
        <source>Please open an audio file first</source>
        <translation>Primero abre un archivo de audio</translation>
    </message>
    <message>
        <source>Failed to load transcription</source>
        <translation>No se pudo cargar la transcripción</translation>
    </message>
    <message>
        <source>Invalid File</source>
        <translation>Archivo no válido</translation>
    </message>
    <message>
        <source>lyric duration is too long</source>
        <translation>la duración de la letra es demasiado larga</translation>
    </message>
    <message>
        <source>Are you sure to clear dictation?</source>
        <translation>¿Seguro que quieres borrar el dictado?</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Muestras</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duración</translation>
    </message>
    <message>
        <source>Segments</source>
        <translation>Segmentos</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Reproducción</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>Repetir</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Continuo</translation>
    </message>
    <message>
        <source>Segment</source>
        <translation>Segmento</translation>
    </message>
    <message>
        <source>Dictation</source>
        <translation>Dictado</translation>
    </message>
    <message>
        <source>|Dictation</source>
        <translation>|Dictado</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Inglés</translation>
    </message>
    <message>
        <source>Chinese(Simplified)</source>
        <translation>Chino (simplificado)</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>Español</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>Japonés</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>Coreano</translation>
    </message>
    <message>
        <source>German</source>
        <translation>Alemán</translation>
    </message>
    <message>
        <source>French</source>
        <translation>Francés</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation>Ruso</translation>
    </message>
    <message>
        <source>Thai</source>
        <translation>Tailandés</translation>
    </message>
    <message>
        <source>Vietnamese</source>
        <translation>Vietnamita</translation>
    </message>
    <message>
        <source>Input must not exceed 6 digits</source>
        <translation>La entrada no puede superar los 6 dígitos</translation>
    </message>
    <message>
        <source>Invalid input: %@</source>
        <translation>Entrada no válida: %@</translation>
    </message>
    <message>
        <source>Settings Reset</source>
        <translation>Ajustes restablecidos</translation>
    </message>
    <message>
        <source>All settings have been restored to their default values</source>
        <translation>Todos los ajustes se han restablecido a sus valores predeterminados</translation>
    </message>
    <message>
        <source>Warnning</source>
        <translation>Advertencia</translation>
    </message>
    <message>
        <source>Please restart the app to apply the new language.</source>
        <translation>Reinicia la aplicación para aplicar el nuevo idioma.</translation>
    </message>
    <message>
        <source>Restart Now</source>
        <translation>Reiniciar ahora</translation>
    </message>
    <message>
        <source>Error checking for updates</source>
        <translation>Error al buscar actualizaciones</translation>
    </message>
    <message>
        <source>Error parsing updates JSON</source>
        <translation>Error al analizar el JSON de actualizaciones</translation>
    </message>
    <message>
        <source>App is already the latest version</source>
        <translation>La aplicación ya está en la versión más reciente</translation>
    </message>
    <message>
        <source>Update Available</source>
        <translation>Actualización disponible</translation>
    </message>
    <message>
        <source>Version %@ is available.

Release Notes:
%@</source>
        <translation>La versión %@ está disponible.

Notas de la versión:
%@</translation>
    </message>
    <message>
        <source>No release notes available</source>
        <translation>No hay notas de la versión disponibles</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Actualizar</translation>
    </message>
    <message>
        <source>Audio Files</source>
        <translation>Archivos de audio</translation>
    </message>
    <message>
        <source>Analysing audio</source>
        <translation>Analizando el audio</translation>
    </message>
    <message>
        <source>Waveform</source>
        <translation>Forma de onda</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Abrir…</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Abrir &amp;reciente</translation>
    </message>
    <message>
        <source>&amp;Clear Menu</source>
        <translation>&amp;Borrar menú</translation>
    </message>
    <message>
        <source>&amp;Export Dictation…</source>
        <translation>&amp;Exportar dictado…</translation>
    </message>
    <message>
        <source>&amp;Quit Kelmora</source>
        <translation>&amp;Salir de Kelmora</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;Window Size</source>
        <translation>&amp;Tamaño de la ventana</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>&amp;Preferencias…</translation>
    </message>
    <message>
        <source>&amp;Check for Updates…</source>
        <translation>&amp;Buscar actualizaciones…</translation>
    </message>
    <message>
        <source>Kelmora &amp;Help</source>
        <translation>&amp;Ayuda de Kelmora</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Play/Pause</source>
        <translation>Reproducir/Pausa</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importar</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Música</translation>
    </message>
    <message>
        <source>Open an audio file</source>
        <translation>Abrir un archivo de audio</translation>
    </message>
    <message>
        <source>Play or pause the current segment</source>
        <translation>Reproducir o pausar el segmento actual</translation>
    </message>
    <message>
        <source>Repeat each segment, or play on to the next</source>
        <translation>Repetir cada segmento o continuar con el siguiente</translation>
    </message>
    <message>
        <source>Export the dictation as an LRC file</source>
        <translation>Exportar el dictado como archivo LRC</translation>
    </message>
    <message>
        <source>Open the preferences</source>
        <translation>Abrir las preferencias</translation>
    </message>
    <message>
        <source>Import a dictation from an LRC file</source>
        <translation>Importar un dictado desde un archivo LRC</translation>
    </message>
    <message>
        <source>Clear the dictation</source>
        <translation>Borrar el dictado</translation>
    </message>
    <message>
        <source>Open a file from your music folder</source>
        <translation>Abrir un archivo de tu carpeta de música</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>Barra de herramientas</translation>
    </message>
    <message>
        <source>Status bar</source>
        <translation>Barra de estado</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Apariencia</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>Atajos</translation>
    </message>
    <message>
        <source>Shortest segment (seconds)</source>
        <translation>Segmento más corto (segundos)</translation>
    </message>
    <message>
        <source>Play speed</source>
        <translation>Velocidad de reproducción</translation>
    </message>
    <message>
        <source>Plays of each segment in repeat mode</source>
        <translation>Reproducciones de cada segmento en modo repetición</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>A new language shows after a restart.</source>
        <translation>El nuevo idioma se verá tras reiniciar.</translation>
    </message>
    <message>
        <source>Table background</source>
        <translation>Fondo de la tabla</translation>
    </message>
    <message>
        <source>Text colour</source>
        <translation>Color del texto</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Fuente</translation>
    </message>
    <message>
        <source>Show line numbers</source>
        <translation>Mostrar números de línea</translation>
    </message>
    <message>
        <source>Show the waveform</source>
        <translation>Mostrar la forma de onda</translation>
    </message>
    <message>
        <source>Show the status bar</source>
        <translation>Mostrar la barra de estado</translation>
    </message>
    <message>
        <source>Previous segment</source>
        <translation>Segmento anterior</translation>
    </message>
    <message>
        <source>Next segment</source>
        <translation>Segmento siguiente</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>Reproducir o pausar</translation>
    </message>
    <message>
        <source>Repeat mode</source>
        <translation>Modo repetición</translation>
    </message>
    <message>
        <source>First segment</source>
        <translation>Primer segmento</translation>
    </message>
    <message>
        <source>Split the audio again</source>
        <translation>Volver a dividir el audio</translation>
    </message>
    <message>
        <source>Click a field and press the new key. Click elsewhere to finish.</source>
        <translation>Haz clic en un campo y pulsa la nueva tecla. Haz clic en otro sitio para terminar.</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <translation>Restablecer valores predeterminados</translation>
    </message>
    <message>
        <source>Choose the dictation font</source>
        <translation>Elegir la fuente del dictado</translation>
    </message>
    <message>
        <source>Transcripts</source>
        <translation>Transcripciones</translation>
    </message>
    <message>
        <source>The lesson is still being analysed. Import the dictation once it has opened.</source>
        <translation>La lección todavía se está analizando. Importa el dictado cuando se haya abierto.</translation>
    </message>
    <message>
        <source>Open a recording with %@ or drop it here</source>
        <translation>Abra una grabación con %@ o suéltela aquí</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Edición</translation>
    </message>
    <message>
        <source>&amp;Playback</source>
        <translation>&amp;Reproducción</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Ay&amp;uda</translation>
    </message>
    <message>
        <source>&amp;Import Dictation…</source>
        <translation>&amp;Importar dictado…</translation>
    </message>
    <message>
        <source>Import from &amp;Music Folder…</source>
        <translation>Abrir de la carpeta de &amp;música…</translation>
    </message>
    <message>
        <source>&amp;Clear Dictation…</source>
        <translation>&amp;Borrar dictado…</translation>
    </message>
    <message>
        <source>&amp;Play/Pause</source>
        <translation>&amp;Reproducir/Pausar</translation>
    </message>
    <message>
        <source>Pre&amp;vious Segment</source>
        <translation>Segmento &amp;anterior</translation>
    </message>
    <message>
        <source>&amp;Next Segment</source>
        <translation>Segmento &amp;siguiente</translation>
    </message>
    <message>
        <source>&amp;Repeat Mode</source>
        <translation>&amp;Modo repetición</translation>
    </message>
    <message>
        <source>&amp;First Segment</source>
        <translation>&amp;Primer segmento</translation>
    </message>
    <message>
        <source>&amp;Split the Audio Again</source>
        <translation>&amp;Volver a dividir el audio</translation>
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
        <translation>Guía rápida de ayuda:

1. Abrir archivo de audio: %@
2. Reproducir/Pausar: %@
3. Segmento siguiente: %@
4. Segmento anterior: %@
5. Modo de repetición: %@
6. Primer segmento: %@
7. Volver a dividir el audio: %@
8. Exportar dictado: %@

Si tienes alguna pregunta, escríbeme a: support@kelmora.app.</translation>
    </message>
    <message>
        <source>&amp;Attach Reference Text…</source>
        <translation>Adjuntar &amp;texto de referencia…</translation>
    </message>
    <message>
        <source>Remo&amp;ve Reference Text</source>
        <translation>&amp;Quitar texto de referencia</translation>
    </message>
    <message>
        <source>Chec&amp;k Segment</source>
        <translation>&amp;Comprobar segmento</translation>
    </message>
    <message>
        <source>Show Next &amp;Word</source>
        <translation>Mostrar siguiente pa&amp;labra</translation>
    </message>
    <message>
        <source>Reference</source>
        <translation>Referencia</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>Comprobar</translation>
    </message>
    <message>
        <source>Attach the lesson&apos;s text (.txt, .srt, .vtt or .lrc) to check your typing</source>
        <translation>Adjuntar el texto de la lección (.txt, .srt, .vtt o .lrc) para comprobar lo que escribes</translation>
    </message>
    <message>
        <source>Check the current segment against the reference text</source>
        <translation>Comprobar el segmento actual con el texto de referencia</translation>
    </message>
    <message>
        <source>Reference Texts</source>
        <translation>Textos de referencia</translation>
    </message>
    <message>
        <source>Cannot Read Reference Text</source>
        <translation>No se puede leer el texto de referencia</translation>
    </message>
    <message>
        <source>Cannot Store Reference Text</source>
        <translation>No se puede guardar el texto de referencia</translation>
    </message>
    <message>
        <source>“%@” could not be read.</source>
        <translation>No se ha podido leer «%@».</translation>
    </message>
    <message>
        <source>“%@” is not a .txt, .srt, .vtt or .lrc file.</source>
        <translation>«%@» no es un archivo .txt, .srt, .vtt o .lrc.</translation>
    </message>
    <message>
        <source>“%@” is larger than 16 MB.</source>
        <translation>«%@» ocupa más de 16 MB.</translation>
    </message>
    <message>
        <source>“%@” is not a text file.</source>
        <translation>«%@» no es un archivo de texto.</translation>
    </message>
    <message>
        <source>“%@” is not UTF-8 text.</source>
        <translation>«%@» no es texto UTF-8.</translation>
    </message>
    <message>
        <source>“%@” is empty.</source>
        <translation>«%@» está vacío.</translation>
    </message>
    <message>
        <source>“%@” does not start with WEBVTT.</source>
        <translation>«%@» no empieza por WEBVTT.</translation>
    </message>
    <message>
        <source>“%@” has no text within the recording.</source>
        <translation>«%@» no tiene texto dentro de la grabación.</translation>
    </message>
    <message>
        <source>Press %@ to check this segment.</source>
        <translation>Pulsa %@ para comprobar este segmento.</translation>
    </message>
    <message>
        <source>Next word: %@</source>
        <translation>Siguiente palabra: %@</translation>
    </message>
    <message>
        <source>Every word is typed.</source>
        <translation>Todas las palabras están escritas.</translation>
    </message>
    <message>
        <source>No reference words for this segment.</source>
        <translation>No hay palabras de referencia para este segmento.</translation>
    </message>
    <message>
        <source>No mistakes.</source>
        <translation>Sin errores.</translation>
    </message>
    <message>
        <source>1 mistake: %@.</source>
        <translation>1 error: %@.</translation>
    </message>
    <message>
        <source>%@ mistakes: %@.</source>
        <translation>%@ errores: %@.</translation>
    </message>
    <message>
        <source>&apos;%@&apos; should be &apos;%@&apos;</source>
        <translation>&apos;%@&apos; debería ser &apos;%@&apos;</translation>
    </message>
    <message>
        <source>missing &apos;%@&apos;</source>
        <translation>falta &apos;%@&apos;</translation>
    </message>
    <message>
        <source>extra &apos;%@&apos;</source>
        <translation>sobra &apos;%@&apos;</translation>
    </message>
    <message>
        <source>Segment %@</source>
        <translation>Segmento %@</translation>
    </message>
    <message>
        <source>lesson %@</source>
        <translation>lección %@</translation>
    </message>
    <message>
        <source>Lesson %@</source>
        <translation>Lección %@</translation>
    </message>
    <message>
        <source>Checked: no mistakes</source>
        <translation>Comprobado: sin errores</translation>
    </message>
    <message>
        <source>Checked: typos only</source>
        <translation>Comprobado: solo erratas</translation>
    </message>
    <message>
        <source>Checked: mistakes</source>
        <translation>Comprobado: con errores</translation>
    </message>
    <message>
        <source>Checking</source>
        <translation>Comprobación</translation>
    </message>
    <message>
        <source>Count punctuation</source>
        <translation>Contar la puntuación</translation>
    </message>
    <message>
        <source>Typo weight:</source>
        <translation>Peso de las erratas:</translation>
    </message>
    <message>
        <source>Count case</source>
        <translation>Distinguir mayúsculas y minúsculas</translation>
    </message>
    <message>
        <source>Check as I type</source>
        <translation>Comprobar mientras escribo</translation>
    </message>
    <message>
        <source>Check segment</source>
        <translation>Comprobar segmento</translation>
    </message>
    <message>
        <source>Show next word</source>
        <translation>Mostrar siguiente palabra</translation>
    </message>
    <message>
        <source>Recovered typing from your last session</source>
        <translation>Se ha recuperado lo escrito en la última sesión</translation>
    </message>
    <message>
        <source>Typing since the last save is not protected: the journal cannot be written</source>
        <translation>Lo escrito desde el último guardado no está protegido: no se puede escribir el diario</translation>
    </message>
    <message>
        <source>Your typing could not be saved to disk; Kelmora will try again at the next save</source>
        <translation>No se pudo guardar lo que escribiste en el disco; Kelmora lo intentará de nuevo en el próximo guardado</translation>
    </message>
    <message>
        <source>The last save failed: what you typed since then may not be on disk.</source>
        <translation>El último guardado falló: lo que escribiste desde entonces puede no estar en el disco.</translation>
    </message>
    <message>
        <source>The transcript is larger than 16 MB and was not read.</source>
        <translation>La transcripción ocupa más de 16 MB y no se ha leído.</translation>
    </message>
    <message>
        <source>The transcript is not a regular file and was not read.</source>
        <translation>La transcripción no es un archivo normal y no se ha leído.</translation>
    </message>
    <message>
        <source>Recover Earlier &amp;Dictation…</source>
        <translation>Recuperar &amp;dictado anterior…</translation>
    </message>
    <message>
        <source>A saved dictation that could not be used was set aside; File → Recover Earlier Dictation… brings it back</source>
        <translation>Un dictado guardado que no se pudo usar se ha apartado; Archivo → Recuperar dictado anterior… lo recupera</translation>
    </message>
    <message>
        <source>Recover Earlier Dictation</source>
        <translation>Recuperar dictado anterior</translation>
    </message>
    <message>
        <source>Versions of this lesson&apos;s dictation that were set aside, newest first:</source>
        <translation>Versiones apartadas del dictado de esta lección, de la más reciente a la más antigua:</translation>
    </message>
    <message>
        <source>Recover</source>
        <translation>Recuperar</translation>
    </message>
    <message>
        <source>No earlier dictation of this recording was set aside.</source>
        <translation>No se ha apartado ningún dictado anterior de esta grabación.</translation>
    </message>
    <message>
        <source>A saved dictation that could not be used could not be set aside; it is not saved over</source>
        <translation>Un dictado guardado que no se pudo usar no se pudo apartar; no se sobrescribe</translation>
    </message>
    <message>
        <source>Kelmora found a dictation typed for this recording at %1 (last saved %2). Use it?</source>
        <translation>Kelmora ha encontrado un dictado escrito para esta grabación en %1 (guardado por última vez %2). ¿Usarlo?</translation>
    </message>
    <message>
        <source>Use It</source>
        <translation>Usarlo</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Ahora no</translation>
    </message>
    <message>
        <source>Spli&amp;t Segment at Play Head</source>
        <translation>Dividir segmen&amp;to en el cabezal de reproducción</translation>
    </message>
    <message>
        <source>&amp;Merge with Next Segment</source>
        <translation>&amp;Unir con el segmento siguiente</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message>
        <source>&amp;Undo %@</source>
        <translation>&amp;Deshacer: %@</translation>
    </message>
    <message>
        <source>&amp;Redo %@</source>
        <translation>&amp;Rehacer: %@</translation>
    </message>
    <message>
        <source>Split Segment</source>
        <translation>Dividir segmento</translation>
    </message>
    <message>
        <source>Merge Segments</source>
        <translation>Unir segmentos</translation>
    </message>
    <message>
        <source>Move Boundary</source>
        <translation>Mover límite</translation>
    </message>
    <message>
        <source>Clear Dictation</source>
        <translation>Borrar dictado</translation>
    </message>
    <message>
        <source>Import Dictation</source>
        <translation>Importar dictado</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>Dividir</translation>
    </message>
    <message>
        <source>Split the segment in two at the play head</source>
        <translation>Dividir el segmento en dos en el cabezal de reproducción</translation>
    </message>
    <message>
        <source>Nothing was split: each part of a segment must be at least 0.1 seconds long</source>
        <translation>No se ha dividido nada: cada parte de un segmento debe durar al menos 0,1 segundos</translation>
    </message>
    <message>
        <source>Move Segment Start &amp;Earlier</source>
        <translation>Adela&amp;ntar el inicio del segmento</translation>
    </message>
    <message>
        <source>Move Segment Start &amp;Later</source>
        <translation>R&amp;etrasar el inicio del segmento</translation>
    </message>
    <message>
        <source>Split segment</source>
        <translation>Dividir segmento</translation>
    </message>
    <message>
        <source>Merge with next</source>
        <translation>Unir con el siguiente</translation>
    </message>
    <message>
        <source>Practice</source>
        <translation>Práctica</translation>
    </message>
    <message>
        <source>Pause after each repetition:</source>
        <translation>Pausa tras cada repetición:</translation>
    </message>
    <message>
        <source>Play the first repetition slower</source>
        <translation>Reproducir más despacio la primera repetición</translation>
    </message>
    <message>
        <source>Step back when playing resumes:</source>
        <translation>Retroceder al reanudar:</translation>
    </message>
    <message>
        <source>Play only while the play key is held</source>
        <translation>Reproducir solo con la tecla pulsada</translation>
    </message>
    <message>
        <source>A sentence is hard below:</source>
        <translation>Una frase es difícil por debajo de:</translation>
    </message>
    <message>
        <source>s</source>
        <translation>s</translation>
    </message>
    <message>
        <source>Until I move on</source>
        <translation>Hasta que avance</translation>
    </message>
    <message>
        <source>Practise &amp;Hard Sentences</source>
        <translation>Practicar frases &amp;difíciles</translation>
    </message>
    <message>
        <source>Practise hard sentences</source>
        <translation>Practicar frases difíciles</translation>
    </message>
    <message>
        <source>Hard sentences: %d left</source>
        <translation>Frases difíciles: quedan %d</translation>
    </message>
    <message>
        <source>No hard sentences in this lesson</source>
        <translation>No hay frases difíciles en esta lección</translation>
    </message>
    <message>
        <source>%d due for review</source>
        <translation>%d pendientes de repaso</translation>
    </message>
    <message>
        <source>Checked once</source>
        <translation>Comprobada una vez</translation>
    </message>
    <message>
        <source>Checked %d times</source>
        <translation>Comprobada %d veces</translation>
    </message>
    <message>
        <source>1 hint</source>
        <translation>1 pista</translation>
    </message>
    <message>
        <source>%d hints</source>
        <translation>%d pistas</translation>
    </message>
    <message>
        <source>last %@, best %@</source>
        <translation>última %@, mejor %@</translation>
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
        <translation>No se pudo guardar tu registro de práctica: %@</translation>
    </message>
    <message>
        <source>Your practice record could not be read and is not saved over: %@</source>
        <translation>No se pudo leer tu registro de práctica y no se sobrescribirá: %@</translation>
    </message>
    <message>
        <source>Cut Segments at &amp;Sentences</source>
        <translation>Cortar segmentos en &amp;oraciones</translation>
    </message>
    <message>
        <source>Cut at Sentences</source>
        <translation>Cortar en oraciones</translation>
    </message>
    <message>
        <source>Segments now: %d</source>
        <translation>Segmentos ahora: %d</translation>
    </message>
    <message>
        <source>Uncertain segment starts: %@</source>
        <translation>Inicios de segmento dudosos: %@</translation>
    </message>
    <message>
        <source>&amp;Align Again…</source>
        <translation>&amp;Alinear de nuevo…</translation>
    </message>
    <message>
        <source>Align Reference Text</source>
        <translation>Alinear el texto de referencia</translation>
    </message>
    <message>
        <source>Kelmora can place each sentence of “%@” on the recording. Which language is the lesson in?</source>
        <translation>Kelmora puede situar cada frase de «%@» en la grabación. ¿En qué idioma está la lección?</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Idioma:</translation>
    </message>
    <message>
        <source>Align</source>
        <translation>Alinear</translation>
    </message>
    <message>
        <source>Don’t Align</source>
        <translation>No alinear</translation>
    </message>
    <message>
        <source>Placing the sentences on the recording…</source>
        <translation>Situando las frases en la grabación…</translation>
    </message>
    <message>
        <source>Aligned %d sentences, %d uncertain</source>
        <translation>%d frases alineadas, %d inciertas</translation>
    </message>
    <message>
        <source>The reference text could not be aligned</source>
        <translation>No se pudo alinear el texto de referencia</translation>
    </message>
    <message>
        <source>%@ The reference text stays as it was.</source>
        <translation>%@ El texto de referencia se queda como estaba.</translation>
    </message>
</context>
</TS>
