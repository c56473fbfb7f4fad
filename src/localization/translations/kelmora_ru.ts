<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Kelmora</source>
        <translation>Kelmora</translation>
    </message>
    <message>
        <source>No audio file opened</source>
        <translation>Аудиофайл не открыт</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Справка</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>Don&apos;t Save</source>
        <translation>Не сохранять</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Позже</translation>
    </message>
    <message>
        <source>Save Dictation?</source>
        <translation>Сохранить диктант?</translation>
    </message>
    <message>
        <source>Do you want to save the dictation before closing?</source>
        <translation>Сохранить диктант перед закрытием?</translation>
    </message>
    <message>
        <source>Error Opening File</source>
        <translation>Ошибка при открытии файла</translation>
    </message>
    <message>
        <source>Invalid File Type</source>
        <translation>Недопустимый тип файла</translation>
    </message>
    <message>
        <source>Please select a supported audio file</source>
        <translation>Выберите поддерживаемый аудиофайл</translation>
    </message>
    <message>
        <source>File Access Error</source>
        <translation>Ошибка доступа к файлу</translation>
    </message>
    <message>
        <source>File Too Large</source>
        <translation>Файл слишком большой</translation>
    </message>
    <message>
        <source>Please select an audio file smaller than %llu MB</source>
        <translation>Выберите аудиофайл размером меньше %llu МБ</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Ошибка</translation>
    </message>
    <message>
        <source>Failed to process audio file</source>
        <translation>Не удалось обработать аудиофайл</translation>
    </message>
    <message>
        <source>Please grant access to the folder containing your audio files</source>
        <translation>Предоставьте доступ к папке с вашими аудиофайлами</translation>
    </message>
    <message>
        <source>Grant Access</source>
        <translation>Предоставить доступ</translation>
    </message>
    <message>
        <source>Save Transcript</source>
        <translation>Сохранить расшифровку</translation>
    </message>
    <message>
        <source>Save Error</source>
        <translation>Ошибка сохранения</translation>
    </message>
    <message>
        <source>Error writing to file</source>
        <translation>Ошибка записи в файл</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Предупреждение</translation>
    </message>
    <message>
        <source>Please open an audio file first</source>
        <translation>Сначала откройте аудиофайл</translation>
    </message>
    <message>
        <source>Failed to load transcription</source>
        <translation>Не удалось загрузить расшифровку</translation>
    </message>
    <message>
        <source>Invalid File</source>
        <translation>Недопустимый файл</translation>
    </message>
    <message>
        <source>lyric duration is too long</source>
        <translation>длительность текста слишком велика</translation>
    </message>
    <message>
        <source>Are you sure to clear dictation?</source>
        <translation>Вы уверены, что хотите очистить диктант?</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Сэмплы</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Длительность</translation>
    </message>
    <message>
        <source>Segments</source>
        <translation>Сегменты</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Воспроизведение</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Пауза</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>Повтор</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Подряд</translation>
    </message>
    <message>
        <source>Segment</source>
        <translation>Сегмент</translation>
    </message>
    <message>
        <source>Dictation</source>
        <translation>Диктант</translation>
    </message>
    <message>
        <source>|Dictation</source>
        <translation>|Диктант</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Английский</translation>
    </message>
    <message>
        <source>Chinese(Simplified)</source>
        <translation>Китайский (упрощённый)</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>Испанский</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>Японский</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>Корейский</translation>
    </message>
    <message>
        <source>German</source>
        <translation>Немецкий</translation>
    </message>
    <message>
        <source>French</source>
        <translation>Французский</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation>Русский</translation>
    </message>
    <message>
        <source>Thai</source>
        <translation>Тайский</translation>
    </message>
    <message>
        <source>Vietnamese</source>
        <translation>Вьетнамский</translation>
    </message>
    <message>
        <source>Input must not exceed 6 digits</source>
        <translation>Ввод не должен превышать 6 цифр</translation>
    </message>
    <message>
        <source>Invalid input: %@</source>
        <translation>Недопустимый ввод: %@</translation>
    </message>
    <message>
        <source>Settings Reset</source>
        <translation>Настройки сброшены</translation>
    </message>
    <message>
        <source>All settings have been restored to their default values</source>
        <translation>Все настройки восстановлены до значений по умолчанию</translation>
    </message>
    <message>
        <source>Warnning</source>
        <translation>Предупреждение</translation>
    </message>
    <message>
        <source>Please restart the app to apply the new language.</source>
        <translation>Перезапустите приложение, чтобы применить новый язык.</translation>
    </message>
    <message>
        <source>Restart Now</source>
        <translation>Перезапустить сейчас</translation>
    </message>
    <message>
        <source>Error checking for updates</source>
        <translation>Ошибка при проверке обновлений</translation>
    </message>
    <message>
        <source>Error parsing updates JSON</source>
        <translation>Ошибка разбора JSON с обновлениями</translation>
    </message>
    <message>
        <source>App is already the latest version</source>
        <translation>У вас уже последняя версия приложения</translation>
    </message>
    <message>
        <source>Update Available</source>
        <translation>Доступно обновление</translation>
    </message>
    <message>
        <source>Version %@ is available.

Release Notes:
%@</source>
        <translation>Доступна версия %@.

Примечания к выпуску:
%@</translation>
    </message>
    <message>
        <source>No release notes available</source>
        <translation>Примечания к выпуску отсутствуют</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Обновить</translation>
    </message>
    <message>
        <source>Audio Files</source>
        <translation>Аудиофайлы</translation>
    </message>
    <message>
        <source>Analysing audio</source>
        <translation>Анализ аудио</translation>
    </message>
    <message>
        <source>Waveform</source>
        <translation>Форма волны</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Файл</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Открыть…</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Открыть &amp;недавние</translation>
    </message>
    <message>
        <source>&amp;Clear Menu</source>
        <translation>&amp;Очистить список</translation>
    </message>
    <message>
        <source>&amp;Export Dictation…</source>
        <translation>&amp;Экспортировать диктант…</translation>
    </message>
    <message>
        <source>&amp;Quit Kelmora</source>
        <translation>&amp;Выйти из Kelmora</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Вид</translation>
    </message>
    <message>
        <source>&amp;Window Size</source>
        <translation>&amp;Размер окна</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>&amp;Настройки…</translation>
    </message>
    <message>
        <source>&amp;Check for Updates…</source>
        <translation>&amp;Проверить обновления…</translation>
    </message>
    <message>
        <source>Kelmora &amp;Help</source>
        <translation>&amp;Справка Kelmora</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Открыть</translation>
    </message>
    <message>
        <source>Play/Pause</source>
        <translation>Воспроизведение/пауза</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Экспорт</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Настройки</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Импорт</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Очистить</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Музыка</translation>
    </message>
    <message>
        <source>Open an audio file</source>
        <translation>Открыть аудиофайл</translation>
    </message>
    <message>
        <source>Play or pause the current segment</source>
        <translation>Воспроизвести или приостановить текущий сегмент</translation>
    </message>
    <message>
        <source>Repeat each segment, or play on to the next</source>
        <translation>Повторять каждый сегмент или переходить к следующему</translation>
    </message>
    <message>
        <source>Export the dictation as an LRC file</source>
        <translation>Экспортировать диктант в файл LRC</translation>
    </message>
    <message>
        <source>Open the preferences</source>
        <translation>Открыть настройки</translation>
    </message>
    <message>
        <source>Import a dictation from an LRC file</source>
        <translation>Импортировать диктант из файла LRC</translation>
    </message>
    <message>
        <source>Clear the dictation</source>
        <translation>Очистить диктант</translation>
    </message>
    <message>
        <source>Open a file from your music folder</source>
        <translation>Открыть файл из папки «Музыка»</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>Панель инструментов</translation>
    </message>
    <message>
        <source>Status bar</source>
        <translation>Строка состояния</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Общие</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Оформление</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>Сочетания клавиш</translation>
    </message>
    <message>
        <source>Shortest segment (seconds)</source>
        <translation>Кратчайший сегмент (секунды)</translation>
    </message>
    <message>
        <source>Play speed</source>
        <translation>Скорость воспроизведения</translation>
    </message>
    <message>
        <source>Plays of each segment in repeat mode</source>
        <translation>Повторов каждого сегмента в режиме повтора</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Язык</translation>
    </message>
    <message>
        <source>A new language shows after a restart.</source>
        <translation>Новый язык появится после перезапуска.</translation>
    </message>
    <message>
        <source>Table background</source>
        <translation>Фон таблицы</translation>
    </message>
    <message>
        <source>Text colour</source>
        <translation>Цвет текста</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Шрифт</translation>
    </message>
    <message>
        <source>Show line numbers</source>
        <translation>Показывать номера строк</translation>
    </message>
    <message>
        <source>Show the waveform</source>
        <translation>Показывать форму волны</translation>
    </message>
    <message>
        <source>Show the status bar</source>
        <translation>Показывать строку состояния</translation>
    </message>
    <message>
        <source>Previous segment</source>
        <translation>Предыдущий сегмент</translation>
    </message>
    <message>
        <source>Next segment</source>
        <translation>Следующий сегмент</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>Воспроизведение или пауза</translation>
    </message>
    <message>
        <source>Repeat mode</source>
        <translation>Режим повтора</translation>
    </message>
    <message>
        <source>First segment</source>
        <translation>Первый сегмент</translation>
    </message>
    <message>
        <source>Split the audio again</source>
        <translation>Заново разбить аудио</translation>
    </message>
    <message>
        <source>Click a field and press the new key. Click elsewhere to finish.</source>
        <translation>Щёлкните поле и нажмите новую клавишу. Чтобы закончить, щёлкните в другом месте.</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <translation>Восстановить настройки по умолчанию</translation>
    </message>
    <message>
        <source>Choose the dictation font</source>
        <translation>Выбрать шрифт диктанта</translation>
    </message>
    <message>
        <source>Transcripts</source>
        <translation>Расшифровки</translation>
    </message>
    <message>
        <source>The lesson is still being analysed. Import the dictation once it has opened.</source>
        <translation>Урок ещё анализируется. Импортируйте диктант, когда он откроется.</translation>
    </message>
    <message>
        <source>Open a recording with %@ or drop it here</source>
        <translation>Откройте запись клавишами %@ или перетащите её сюда</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Правка</translation>
    </message>
    <message>
        <source>&amp;Playback</source>
        <translation>Воспр&amp;оизведение</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Справка</translation>
    </message>
    <message>
        <source>&amp;Import Dictation…</source>
        <translation>&amp;Импортировать диктант…</translation>
    </message>
    <message>
        <source>Import from &amp;Music Folder…</source>
        <translation>Открыть из папки «&amp;Музыка»…</translation>
    </message>
    <message>
        <source>&amp;Clear Dictation…</source>
        <translation>&amp;Очистить диктант…</translation>
    </message>
    <message>
        <source>&amp;Play/Pause</source>
        <translation>&amp;Воспроизведение/пауза</translation>
    </message>
    <message>
        <source>Pre&amp;vious Segment</source>
        <translation>&amp;Предыдущий сегмент</translation>
    </message>
    <message>
        <source>&amp;Next Segment</source>
        <translation>&amp;Следующий сегмент</translation>
    </message>
    <message>
        <source>&amp;Repeat Mode</source>
        <translation>&amp;Режим повтора</translation>
    </message>
    <message>
        <source>&amp;First Segment</source>
        <translation>П&amp;ервый сегмент</translation>
    </message>
    <message>
        <source>&amp;Split the Audio Again</source>
        <translation>&amp;Заново разбить аудио</translation>
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
        <translation>Краткая справка:

1. Открыть аудиофайл: %@
2. Воспроизведение/пауза: %@
3. Следующий сегмент: %@
4. Предыдущий сегмент: %@
5. Режим повтора: %@
6. Первый сегмент: %@
7. Заново разбить аудио: %@
8. Экспортировать диктант: %@

Если у вас есть вопросы, напишите мне: support@kelmora.app.</translation>
    </message>
    <message>
        <source>&amp;Attach Reference Text…</source>
        <translation>&amp;Прикрепить эталонный текст…</translation>
    </message>
    <message>
        <source>Remo&amp;ve Reference Text</source>
        <translation>&amp;Удалить эталонный текст</translation>
    </message>
    <message>
        <source>Chec&amp;k Segment</source>
        <translation>Проверить се&amp;гмент</translation>
    </message>
    <message>
        <source>Show Next &amp;Word</source>
        <translation>Показать с&amp;ледующее слово</translation>
    </message>
    <message>
        <source>Reference</source>
        <translation>Эталон</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>Проверить</translation>
    </message>
    <message>
        <source>Attach the lesson&apos;s text (.txt, .srt, .vtt or .lrc) to check your typing</source>
        <translation>Прикрепить текст урока (.txt, .srt, .vtt или .lrc) для проверки набранного</translation>
    </message>
    <message>
        <source>Check the current segment against the reference text</source>
        <translation>Проверить текущий сегмент по эталонному тексту</translation>
    </message>
    <message>
        <source>Reference Texts</source>
        <translation>Эталонные тексты</translation>
    </message>
    <message>
        <source>Cannot Read Reference Text</source>
        <translation>Не удаётся прочитать эталонный текст</translation>
    </message>
    <message>
        <source>Cannot Store Reference Text</source>
        <translation>Не удаётся сохранить эталонный текст</translation>
    </message>
    <message>
        <source>“%@” could not be read.</source>
        <translation>Не удалось прочитать «%@».</translation>
    </message>
    <message>
        <source>“%@” is not a .txt, .srt, .vtt or .lrc file.</source>
        <translation>«%@» — не файл .txt, .srt, .vtt или .lrc.</translation>
    </message>
    <message>
        <source>“%@” is larger than 16 MB.</source>
        <translation>«%@» больше 16 МБ.</translation>
    </message>
    <message>
        <source>“%@” is not a text file.</source>
        <translation>«%@» — не текстовый файл.</translation>
    </message>
    <message>
        <source>“%@” is not UTF-8 text.</source>
        <translation>«%@» — не текст в кодировке UTF-8.</translation>
    </message>
    <message>
        <source>“%@” is empty.</source>
        <translation>Файл «%@» пуст.</translation>
    </message>
    <message>
        <source>“%@” does not start with WEBVTT.</source>
        <translation>«%@» не начинается с WEBVTT.</translation>
    </message>
    <message>
        <source>“%@” has no text within the recording.</source>
        <translation>В «%@» нет текста в пределах записи.</translation>
    </message>
    <message>
        <source>Press %@ to check this segment.</source>
        <translation>Нажмите %@, чтобы проверить этот сегмент.</translation>
    </message>
    <message>
        <source>Next word: %@</source>
        <translation>Следующее слово: %@</translation>
    </message>
    <message>
        <source>Every word is typed.</source>
        <translation>Все слова набраны.</translation>
    </message>
    <message>
        <source>No reference words for this segment.</source>
        <translation>Для этого сегмента нет слов эталона.</translation>
    </message>
    <message>
        <source>No mistakes.</source>
        <translation>Ошибок нет.</translation>
    </message>
    <message>
        <source>1 mistake: %@.</source>
        <translation>1 ошибка: %@.</translation>
    </message>
    <message>
        <source>%@ mistakes: %@.</source>
        <translation>Ошибок: %@ — %@.</translation>
    </message>
    <message>
        <source>&apos;%@&apos; should be &apos;%@&apos;</source>
        <translation>«%@» вместо «%@»</translation>
    </message>
    <message>
        <source>missing &apos;%@&apos;</source>
        <translation>пропущено «%@»</translation>
    </message>
    <message>
        <source>extra &apos;%@&apos;</source>
        <translation>лишнее «%@»</translation>
    </message>
    <message>
        <source>Segment %@</source>
        <translation>Сегмент %@</translation>
    </message>
    <message>
        <source>lesson %@</source>
        <translation>урок %@</translation>
    </message>
    <message>
        <source>Lesson %@</source>
        <translation>Урок %@</translation>
    </message>
    <message>
        <source>Checked: no mistakes</source>
        <translation>Проверено: без ошибок</translation>
    </message>
    <message>
        <source>Checked: typos only</source>
        <translation>Проверено: только опечатки</translation>
    </message>
    <message>
        <source>Checked: mistakes</source>
        <translation>Проверено: есть ошибки</translation>
    </message>
    <message>
        <source>Checking</source>
        <translation>Проверка</translation>
    </message>
    <message>
        <source>Count punctuation</source>
        <translation>Учитывать пунктуацию</translation>
    </message>
    <message>
        <source>Typo weight:</source>
        <translation>Вес опечатки:</translation>
    </message>
    <message>
        <source>Count case</source>
        <translation>Учитывать регистр</translation>
    </message>
    <message>
        <source>Check as I type</source>
        <translation>Проверять при наборе</translation>
    </message>
    <message>
        <source>Check segment</source>
        <translation>Проверить сегмент</translation>
    </message>
    <message>
        <source>Show next word</source>
        <translation>Показать следующее слово</translation>
    </message>
    <message>
        <source>Recovered typing from your last session</source>
        <translation>Восстановлен текст, набранный в прошлый раз</translation>
    </message>
    <message>
        <source>Typing since the last save is not protected: the journal cannot be written</source>
        <translation>Текст, набранный после последнего сохранения, не защищён: журнал не удаётся записать</translation>
    </message>
    <message>
        <source>Your typing could not be saved to disk; Kelmora will try again at the next save</source>
        <translation>Не удалось сохранить набранный текст на диск; Kelmora попробует снова при следующем сохранении</translation>
    </message>
    <message>
        <source>The last save failed: what you typed since then may not be on disk.</source>
        <translation>Последнее сохранение не удалось: набранное с тех пор, возможно, не записано на диск.</translation>
    </message>
    <message>
        <source>The transcript is larger than 16 MB and was not read.</source>
        <translation>Расшифровка больше 16 МБ и не была прочитана.</translation>
    </message>
    <message>
        <source>The transcript is not a regular file and was not read.</source>
        <translation>Расшифровка не является обычным файлом и не была прочитана.</translation>
    </message>
    <message>
        <source>Recover Earlier &amp;Dictation…</source>
        <translation>Восстановить прежний &amp;диктант…</translation>
    </message>
    <message>
        <source>A saved dictation that could not be used was set aside; File → Recover Earlier Dictation… brings it back</source>
        <translation>Сохранённый диктант, который не удалось использовать, отложен; Файл → Восстановить прежний диктант… вернёт его</translation>
    </message>
    <message>
        <source>Recover Earlier Dictation</source>
        <translation>Восстановить прежний диктант</translation>
    </message>
    <message>
        <source>Versions of this lesson&apos;s dictation that were set aside, newest first:</source>
        <translation>Отложенные версии диктанта этого урока, сначала новые:</translation>
    </message>
    <message>
        <source>Recover</source>
        <translation>Восстановить</translation>
    </message>
    <message>
        <source>No earlier dictation of this recording was set aside.</source>
        <translation>Для этой записи нет отложенных прежних диктантов.</translation>
    </message>
    <message>
        <source>A saved dictation that could not be used could not be set aside; it is not saved over</source>
        <translation>Сохранённый диктант, который не удалось использовать, не удалось отложить; он не перезаписывается</translation>
    </message>
    <message>
        <source>Kelmora found a dictation typed for this recording at %1 (last saved %2). Use it?</source>
        <translation>Kelmora нашла диктант, набранный для этой записи в %1 (последнее сохранение: %2). Использовать его?</translation>
    </message>
    <message>
        <source>Use It</source>
        <translation>Использовать</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Не сейчас</translation>
    </message>
    <message>
        <source>Spli&amp;t Segment at Play Head</source>
        <translation>Раз&amp;делить сегмент в позиции воспроизведения</translation>
    </message>
    <message>
        <source>&amp;Merge with Next Segment</source>
        <translation>О&amp;бъединить со следующим сегментом</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>О&amp;тменить</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Повторить</translation>
    </message>
    <message>
        <source>&amp;Undo %@</source>
        <translation>О&amp;тменить: %@</translation>
    </message>
    <message>
        <source>&amp;Redo %@</source>
        <translation>&amp;Повторить: %@</translation>
    </message>
    <message>
        <source>Split Segment</source>
        <translation>Разделить сегмент</translation>
    </message>
    <message>
        <source>Merge Segments</source>
        <translation>Объединить сегменты</translation>
    </message>
    <message>
        <source>Move Boundary</source>
        <translation>Сдвинуть границу</translation>
    </message>
    <message>
        <source>Clear Dictation</source>
        <translation>Очистить диктант</translation>
    </message>
    <message>
        <source>Import Dictation</source>
        <translation>Импортировать диктант</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>Разделить</translation>
    </message>
    <message>
        <source>Split the segment in two at the play head</source>
        <translation>Разделить сегмент надвое в позиции воспроизведения</translation>
    </message>
    <message>
        <source>Nothing was split: each part of a segment must be at least 0.1 seconds long</source>
        <translation>Ничего не разделено: каждая часть сегмента должна длиться не менее 0,1 секунды</translation>
    </message>
    <message>
        <source>Move Segment Start &amp;Earlier</source>
        <translation>Сдвинуть начало сегмента р&amp;аньше</translation>
    </message>
    <message>
        <source>Move Segment Start &amp;Later</source>
        <translation>Сдвинуть начало сегмента поз&amp;же</translation>
    </message>
    <message>
        <source>Split segment</source>
        <translation>Разделить сегмент</translation>
    </message>
    <message>
        <source>Merge with next</source>
        <translation>Объединить со следующим</translation>
    </message>
    <message>
        <source>Practice</source>
        <translation>Практика</translation>
    </message>
    <message>
        <source>Pause after each repetition:</source>
        <translation>Пауза после каждого повтора:</translation>
    </message>
    <message>
        <source>Play the first repetition slower</source>
        <translation>Первый повтор медленнее</translation>
    </message>
    <message>
        <source>Step back when playing resumes:</source>
        <translation>Отступ назад при продолжении:</translation>
    </message>
    <message>
        <source>Play only while the play key is held</source>
        <translation>Играть, пока нажата клавиша</translation>
    </message>
    <message>
        <source>A sentence is hard below:</source>
        <translation>Предложение трудное, если ниже:</translation>
    </message>
    <message>
        <source>s</source>
        <translation>с</translation>
    </message>
    <message>
        <source>Until I move on</source>
        <translation>Пока не перейду дальше</translation>
    </message>
    <message>
        <source>Practise &amp;Hard Sentences</source>
        <translation>Тренировать &amp;трудные предложения</translation>
    </message>
    <message>
        <source>Practise hard sentences</source>
        <translation>Тренировать трудные предложения</translation>
    </message>
    <message>
        <source>Hard sentences: %d left</source>
        <translation>Трудные предложения: осталось %d</translation>
    </message>
    <message>
        <source>No hard sentences in this lesson</source>
        <translation>В этом уроке нет трудных предложений</translation>
    </message>
    <message>
        <source>%d due for review</source>
        <translation>К повторению: %d</translation>
    </message>
    <message>
        <source>Checked once</source>
        <translation>Проверено один раз</translation>
    </message>
    <message>
        <source>Checked %d times</source>
        <translation>Проверено раз: %d</translation>
    </message>
    <message>
        <source>1 hint</source>
        <translation>1 подсказка</translation>
    </message>
    <message>
        <source>%d hints</source>
        <translation>Подсказок: %d</translation>
    </message>
    <message>
        <source>last %@, best %@</source>
        <translation>последний %@, лучший %@</translation>
    </message>
    <message>
        <source>%d min %d s</source>
        <translation>%d мин %d с</translation>
    </message>
    <message>
        <source>%d s</source>
        <translation>%d с</translation>
    </message>
    <message>
        <source>Your practice record could not be saved: %@</source>
        <translation>Не удалось сохранить журнал занятий: %@</translation>
    </message>
    <message>
        <source>Your practice record could not be read and is not saved over: %@</source>
        <translation>Не удалось прочитать журнал занятий, он не будет перезаписан: %@</translation>
    </message>
    <message>
        <source>Cut Segments at &amp;Sentences</source>
        <translation>&amp;Разрезать сегменты по предложениям</translation>
    </message>
    <message>
        <source>Cut at Sentences</source>
        <translation>Разрезать по предложениям</translation>
    </message>
    <message>
        <source>Segments now: %d</source>
        <translation>Сегментов теперь: %d</translation>
    </message>
    <message>
        <source>Uncertain segment starts: %@</source>
        <translation>Неуверенные начала сегментов: %@</translation>
    </message>
    <message>
        <source>&amp;Align Again…</source>
        <translation>&amp;Выровнять заново…</translation>
    </message>
    <message>
        <source>Align Reference Text</source>
        <translation>Выравнивание текста-образца</translation>
    </message>
    <message>
        <source>Kelmora can place each sentence of “%@” on the recording. Which language is the lesson in?</source>
        <translation>Kelmora может найти каждое предложение «%@» в записи. На каком языке урок?</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Язык:</translation>
    </message>
    <message>
        <source>Align</source>
        <translation>Выровнять</translation>
    </message>
    <message>
        <source>Don’t Align</source>
        <translation>Не выравнивать</translation>
    </message>
    <message>
        <source>Placing the sentences on the recording…</source>
        <translation>Предложения размещаются на записи…</translation>
    </message>
    <message>
        <source>Aligned %d sentences, %d uncertain</source>
        <translation>Выровнено предложений: %d, неуверенных: %d</translation>
    </message>
    <message>
        <source>The reference text could not be aligned</source>
        <translation>Не удалось выровнять текст-образец</translation>
    </message>
    <message>
        <source>%@ The reference text stays as it was.</source>
        <translation>%@ Текст-образец остаётся прежним.</translation>
    </message>
</context>
</TS>
