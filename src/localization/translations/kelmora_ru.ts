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
        <source>Quick Help Guide:

1. Open Audio File: Command + O
2. Play/Pause: Enter
3. Next Segment: Down Arrow
4. Previous Segment: Up Arrow
5. Repeat Mode: Control+ R
6. Save Dictation: Command + S

If you have any questions, email me: support@kelmora.app.</source>
        <translation>Краткая справка:

1. Открыть аудиофайл: Command + O
2. Воспроизведение/пауза: Enter
3. Следующий сегмент: стрелка вниз
4. Предыдущий сегмент: стрелка вверх
5. Режим повтора: Control+ R
6. Сохранить диктант: Command + S

Если у вас есть вопросы, напишите мне: support@kelmora.app.</translation>
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
</context>
</TS>
