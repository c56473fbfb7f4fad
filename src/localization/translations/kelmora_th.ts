<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="th" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Kelmora</source>
        <translation>Kelmora</translation>
    </message>
    <message>
        <source>No audio file opened</source>
        <translation>ยังไม่ได้เปิดไฟล์เสียง</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>การตั้งค่า</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>วิธีใช้</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ตกลง</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>ยกเลิก</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>บันทึก</translation>
    </message>
    <message>
        <source>Don&apos;t Save</source>
        <translation>ไม่บันทึก</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>ภายหลัง</translation>
    </message>
    <message>
        <source>Save Dictation?</source>
        <translation>บันทึกการเขียนตามคำบอกหรือไม่</translation>
    </message>
    <message>
        <source>Do you want to save the dictation before closing?</source>
        <translation>คุณต้องการบันทึกการเขียนตามคำบอกก่อนปิดหรือไม่</translation>
    </message>
    <message>
        <source>Error Opening File</source>
        <translation>เกิดข้อผิดพลาดในการเปิดไฟล์</translation>
    </message>
    <message>
        <source>Invalid File Type</source>
        <translation>ประเภทไฟล์ไม่ถูกต้อง</translation>
    </message>
    <message>
        <source>Please select a supported audio file</source>
        <translation>โปรดเลือกไฟล์เสียงที่รองรับ</translation>
    </message>
    <message>
        <source>File Access Error</source>
        <translation>ข้อผิดพลาดในการเข้าถึงไฟล์</translation>
    </message>
    <message>
        <source>File Too Large</source>
        <translation>ไฟล์มีขนาดใหญ่เกินไป</translation>
    </message>
    <message>
        <source>Please select an audio file smaller than %llu MB</source>
        <translation>โปรดเลือกไฟล์เสียงที่มีขนาดเล็กกว่า %llu MB</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>ข้อผิดพลาด</translation>
    </message>
    <message>
        <source>Failed to process audio file</source>
        <translation>ประมวลผลไฟล์เสียงไม่สำเร็จ</translation>
    </message>
    <message>
        <source>Please grant access to the folder containing your audio files</source>
        <translation>โปรดอนุญาตให้เข้าถึงโฟลเดอร์ที่มีไฟล์เสียงของคุณ</translation>
    </message>
    <message>
        <source>Grant Access</source>
        <translation>อนุญาตการเข้าถึง</translation>
    </message>
    <message>
        <source>Save Transcript</source>
        <translation>บันทึกบทถอดความ</translation>
    </message>
    <message>
        <source>Save Error</source>
        <translation>ข้อผิดพลาดในการบันทึก</translation>
    </message>
    <message>
        <source>Error writing to file</source>
        <translation>เกิดข้อผิดพลาดในการเขียนไฟล์</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>คำเตือน</translation>
    </message>
    <message>
        <source>Please open an audio file first</source>
        <translation>โปรดเปิดไฟล์เสียงก่อน</translation>
    </message>
    <message>
        <source>Failed to load transcription</source>
        <translation>โหลดบทถอดความไม่สำเร็จ</translation>
    </message>
    <message>
        <source>Invalid File</source>
        <translation>ไฟล์ไม่ถูกต้อง</translation>
    </message>
    <message>
        <source>lyric duration is too long</source>
        <translation>ความยาวของเนื้อเพลงยาวเกินไป</translation>
    </message>
    <message>
        <source>Are you sure to clear dictation?</source>
        <translation>คุณแน่ใจหรือไม่ว่าต้องการล้างการเขียนตามคำบอก</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>จำนวนแซมเปิล</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>ความยาว</translation>
    </message>
    <message>
        <source>Segments</source>
        <translation>จำนวนช่วง</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>เล่น</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>หยุดชั่วคราว</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>เล่นซ้ำ</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>เล่นต่อเนื่อง</translation>
    </message>
    <message>
        <source>Segment</source>
        <translation>ช่วง</translation>
    </message>
    <message>
        <source>Dictation</source>
        <translation>เขียนตามคำบอก</translation>
    </message>
    <message>
        <source>|Dictation</source>
        <translation>|เขียนตามคำบอก</translation>
    </message>
    <message>
        <source>English</source>
        <translation>ภาษาอังกฤษ</translation>
    </message>
    <message>
        <source>Chinese(Simplified)</source>
        <translation>ภาษาจีน (ตัวย่อ)</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>ภาษาสเปน</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>ภาษาญี่ปุ่น</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>ภาษาเกาหลี</translation>
    </message>
    <message>
        <source>German</source>
        <translation>ภาษาเยอรมัน</translation>
    </message>
    <message>
        <source>French</source>
        <translation>ภาษาฝรั่งเศส</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation>ภาษารัสเซีย</translation>
    </message>
    <message>
        <source>Thai</source>
        <translation>ภาษาไทย</translation>
    </message>
    <message>
        <source>Vietnamese</source>
        <translation>ภาษาเวียดนาม</translation>
    </message>
    <message>
        <source>Input must not exceed 6 digits</source>
        <translation>ป้อนได้ไม่เกิน 6 หลัก</translation>
    </message>
    <message>
        <source>Invalid input: %@</source>
        <translation>ข้อมูลที่ป้อนไม่ถูกต้อง: %@</translation>
    </message>
    <message>
        <source>Settings Reset</source>
        <translation>รีเซ็ตการตั้งค่าแล้ว</translation>
    </message>
    <message>
        <source>All settings have been restored to their default values</source>
        <translation>คืนค่าการตั้งค่าทั้งหมดเป็นค่าเริ่มต้นแล้ว</translation>
    </message>
    <message>
        <source>Warnning</source>
        <translation>คำเตือน</translation>
    </message>
    <message>
        <source>Please restart the app to apply the new language.</source>
        <translation>โปรดรีสตาร์ตแอปเพื่อใช้ภาษาใหม่</translation>
    </message>
    <message>
        <source>Restart Now</source>
        <translation>รีสตาร์ตเดี๋ยวนี้</translation>
    </message>
    <message>
        <source>Error checking for updates</source>
        <translation>เกิดข้อผิดพลาดในการตรวจสอบการอัปเดต</translation>
    </message>
    <message>
        <source>Error parsing updates JSON</source>
        <translation>เกิดข้อผิดพลาดในการแยกวิเคราะห์ JSON ของการอัปเดต</translation>
    </message>
    <message>
        <source>App is already the latest version</source>
        <translation>แอปเป็นเวอร์ชันล่าสุดแล้ว</translation>
    </message>
    <message>
        <source>Update Available</source>
        <translation>มีอัปเดตใหม่</translation>
    </message>
    <message>
        <source>Version %@ is available.

Release Notes:
%@</source>
        <translation>เวอร์ชัน %@ พร้อมให้ใช้งานแล้ว

บันทึกประจำรุ่น:
%@</translation>
    </message>
    <message>
        <source>No release notes available</source>
        <translation>ไม่มีบันทึกประจำรุ่น</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>อัปเดต</translation>
    </message>
    <message>
        <source>Audio Files</source>
        <translation>ไฟล์เสียง</translation>
    </message>
    <message>
        <source>Analysing audio</source>
        <translation>กำลังวิเคราะห์เสียง</translation>
    </message>
    <message>
        <source>Waveform</source>
        <translation>รูปคลื่นเสียง</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>ไฟล์(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>เปิด(&amp;O)…</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>เปิดรายการล่าสุด(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Clear Menu</source>
        <translation>ล้างเมนู(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Export Dictation…</source>
        <translation>ส่งออกการเขียนตามคำบอก(&amp;E)…</translation>
    </message>
    <message>
        <source>&amp;Quit Kelmora</source>
        <translation>ออกจาก Kelmora(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>มุมมอง(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Window Size</source>
        <translation>ขนาดหน้าต่าง(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>การตั้งค่า(&amp;P)…</translation>
    </message>
    <message>
        <source>&amp;Check for Updates…</source>
        <translation>ตรวจหาอัปเดต(&amp;C)…</translation>
    </message>
    <message>
        <source>Kelmora &amp;Help</source>
        <translation>วิธีใช้ Kelmora(&amp;H)</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>เปิด</translation>
    </message>
    <message>
        <source>Play/Pause</source>
        <translation>เล่น/หยุดชั่วคราว</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>ส่งออก</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>การตั้งค่า</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>นำเข้า</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>ล้าง</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>เพลง</translation>
    </message>
    <message>
        <source>Open an audio file</source>
        <translation>เปิดไฟล์เสียง</translation>
    </message>
    <message>
        <source>Play or pause the current segment</source>
        <translation>เล่นหรือหยุดช่วงปัจจุบันชั่วคราว</translation>
    </message>
    <message>
        <source>Repeat each segment, or play on to the next</source>
        <translation>เล่นซ้ำแต่ละช่วง หรือเล่นต่อไปยังช่วงถัดไป</translation>
    </message>
    <message>
        <source>Export the dictation as an LRC file</source>
        <translation>ส่งออกการเขียนตามคำบอกเป็นไฟล์ LRC</translation>
    </message>
    <message>
        <source>Open the preferences</source>
        <translation>เปิดการตั้งค่า</translation>
    </message>
    <message>
        <source>Import a dictation from an LRC file</source>
        <translation>นำเข้าการเขียนตามคำบอกจากไฟล์ LRC</translation>
    </message>
    <message>
        <source>Clear the dictation</source>
        <translation>ล้างการเขียนตามคำบอก</translation>
    </message>
    <message>
        <source>Open a file from your music folder</source>
        <translation>เปิดไฟล์จากโฟลเดอร์เพลงของคุณ</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>แถบเครื่องมือ</translation>
    </message>
    <message>
        <source>Status bar</source>
        <translation>แถบสถานะ</translation>
    </message>
    <message>
        <source>General</source>
        <translation>ทั่วไป</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>รูปลักษณ์</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>ปุ่มลัด</translation>
    </message>
    <message>
        <source>Shortest segment (seconds)</source>
        <translation>ช่วงที่สั้นที่สุด (วินาที)</translation>
    </message>
    <message>
        <source>Play speed</source>
        <translation>ความเร็วในการเล่น</translation>
    </message>
    <message>
        <source>Plays of each segment in repeat mode</source>
        <translation>จำนวนครั้งที่เล่นแต่ละช่วงในโหมดเล่นซ้ำ</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>ภาษา</translation>
    </message>
    <message>
        <source>A new language shows after a restart.</source>
        <translation>ภาษาใหม่จะแสดงหลังจากเริ่มโปรแกรมใหม่</translation>
    </message>
    <message>
        <source>Table background</source>
        <translation>พื้นหลังตาราง</translation>
    </message>
    <message>
        <source>Text colour</source>
        <translation>สีตัวอักษร</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>แบบอักษร</translation>
    </message>
    <message>
        <source>Show line numbers</source>
        <translation>แสดงหมายเลขบรรทัด</translation>
    </message>
    <message>
        <source>Show the waveform</source>
        <translation>แสดงรูปคลื่นเสียง</translation>
    </message>
    <message>
        <source>Show the status bar</source>
        <translation>แสดงแถบสถานะ</translation>
    </message>
    <message>
        <source>Previous segment</source>
        <translation>ช่วงก่อนหน้า</translation>
    </message>
    <message>
        <source>Next segment</source>
        <translation>ช่วงถัดไป</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>เล่นหรือหยุดชั่วคราว</translation>
    </message>
    <message>
        <source>Repeat mode</source>
        <translation>โหมดเล่นซ้ำ</translation>
    </message>
    <message>
        <source>First segment</source>
        <translation>ช่วงแรก</translation>
    </message>
    <message>
        <source>Split the audio again</source>
        <translation>แบ่งเสียงใหม่อีกครั้ง</translation>
    </message>
    <message>
        <source>Click a field and press the new key. Click elsewhere to finish.</source>
        <translation>คลิกที่ช่องแล้วกดปุ่มใหม่ คลิกที่อื่นเพื่อเสร็จสิ้น</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <translation>คืนค่าเริ่มต้น</translation>
    </message>
    <message>
        <source>Choose the dictation font</source>
        <translation>เลือกแบบอักษรของการเขียนตามคำบอก</translation>
    </message>
    <message>
        <source>Transcripts</source>
        <translation>บทถอดความ</translation>
    </message>
    <message>
        <source>The lesson is still being analysed. Import the dictation once it has opened.</source>
        <translation>ยังคงวิเคราะห์บทเรียนอยู่ นำเข้าการเขียนตามคำบอกเมื่อเปิดบทเรียนเสร็จแล้ว</translation>
    </message>
    <message>
        <source>Open a recording with %@ or drop it here</source>
        <translation>เปิดไฟล์เสียงที่บันทึกไว้ด้วย %@ หรือลากมาวางที่นี่</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>แก้ไข(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Playback</source>
        <translation>การเล่น(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>วิธีใช้(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Import Dictation…</source>
        <translation>นำเข้าการเขียนตามคำบอก(&amp;I)…</translation>
    </message>
    <message>
        <source>Import from &amp;Music Folder…</source>
        <translation>เปิดจากโฟลเดอร์เพลง(&amp;M)…</translation>
    </message>
    <message>
        <source>&amp;Clear Dictation…</source>
        <translation>ล้างการเขียนตามคำบอก(&amp;C)…</translation>
    </message>
    <message>
        <source>&amp;Play/Pause</source>
        <translation>เล่น/หยุดชั่วคราว(&amp;P)</translation>
    </message>
    <message>
        <source>Pre&amp;vious Segment</source>
        <translation>ช่วงก่อนหน้า(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Next Segment</source>
        <translation>ช่วงถัดไป(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Repeat Mode</source>
        <translation>โหมดเล่นซ้ำ(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;First Segment</source>
        <translation>ช่วงแรก(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Split the Audio Again</source>
        <translation>แบ่งเสียงใหม่อีกครั้ง(&amp;S)</translation>
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
        <translation>คู่มือช่วยเหลือฉบับย่อ:

1. เปิดไฟล์เสียง: %@
2. เล่น/หยุดชั่วคราว: %@
3. ช่วงถัดไป: %@
4. ช่วงก่อนหน้า: %@
5. โหมดเล่นซ้ำ: %@
6. ช่วงแรก: %@
7. แบ่งเสียงใหม่อีกครั้ง: %@
8. ส่งออกการเขียนตามคำบอก: %@

หากมีคำถามใด ๆ ส่งอีเมลถึงฉันได้ที่: support@kelmora.app</translation>
    </message>
    <message>
        <source>&amp;Attach Reference Text…</source>
        <translation>แนบข้อความอ้างอิง(&amp;A)…</translation>
    </message>
    <message>
        <source>Remo&amp;ve Reference Text</source>
        <translation>เอาข้อความอ้างอิงออก(&amp;V)</translation>
    </message>
    <message>
        <source>Chec&amp;k Segment</source>
        <translation>ตรวจช่วง(&amp;K)</translation>
    </message>
    <message>
        <source>Show Next &amp;Word</source>
        <translation>แสดงคำถัดไป(&amp;W)</translation>
    </message>
    <message>
        <source>Reference</source>
        <translation>อ้างอิง</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>ตรวจ</translation>
    </message>
    <message>
        <source>Attach the lesson&apos;s text (.txt, .srt, .vtt or .lrc) to check your typing</source>
        <translation>แนบข้อความของบทเรียน (.txt, .srt, .vtt หรือ .lrc) เพื่อตรวจสิ่งที่คุณพิมพ์</translation>
    </message>
    <message>
        <source>Check the current segment against the reference text</source>
        <translation>ตรวจช่วงปัจจุบันเทียบกับข้อความอ้างอิง</translation>
    </message>
    <message>
        <source>Reference Texts</source>
        <translation>ข้อความอ้างอิง</translation>
    </message>
    <message>
        <source>Cannot Read Reference Text</source>
        <translation>ไม่สามารถอ่านข้อความอ้างอิง</translation>
    </message>
    <message>
        <source>Cannot Store Reference Text</source>
        <translation>ไม่สามารถจัดเก็บข้อความอ้างอิง</translation>
    </message>
    <message>
        <source>“%@” could not be read.</source>
        <translation>ไม่สามารถอ่าน “%@” ได้</translation>
    </message>
    <message>
        <source>“%@” is not a .txt, .srt, .vtt or .lrc file.</source>
        <translation>“%@” ไม่ใช่ไฟล์ .txt, .srt, .vtt หรือ .lrc</translation>
    </message>
    <message>
        <source>“%@” is larger than 16 MB.</source>
        <translation>“%@” มีขนาดใหญ่กว่า 16 MB</translation>
    </message>
    <message>
        <source>“%@” is not a text file.</source>
        <translation>“%@” ไม่ใช่ไฟล์ข้อความ</translation>
    </message>
    <message>
        <source>“%@” is not UTF-8 text.</source>
        <translation>“%@” ไม่ใช่ข้อความ UTF-8</translation>
    </message>
    <message>
        <source>“%@” is empty.</source>
        <translation>“%@” ว่างเปล่า</translation>
    </message>
    <message>
        <source>“%@” does not start with WEBVTT.</source>
        <translation>“%@” ไม่ได้ขึ้นต้นด้วย WEBVTT</translation>
    </message>
    <message>
        <source>“%@” has no text within the recording.</source>
        <translation>“%@” ไม่มีข้อความที่อยู่ในช่วงเวลาของไฟล์เสียง</translation>
    </message>
    <message>
        <source>Press %@ to check this segment.</source>
        <translation>กด %@ เพื่อตรวจช่วงนี้</translation>
    </message>
    <message>
        <source>Next word: %@</source>
        <translation>คำถัดไป: %@</translation>
    </message>
    <message>
        <source>Every word is typed.</source>
        <translation>พิมพ์ครบทุกคำแล้ว</translation>
    </message>
    <message>
        <source>No reference words for this segment.</source>
        <translation>ไม่มีคำอ้างอิงสำหรับช่วงนี้</translation>
    </message>
    <message>
        <source>No mistakes.</source>
        <translation>ไม่มีข้อผิดพลาด</translation>
    </message>
    <message>
        <source>1 mistake: %@.</source>
        <translation>ผิด 1 จุด: %@</translation>
    </message>
    <message>
        <source>%@ mistakes: %@.</source>
        <translation>ผิด %@ จุด: %@</translation>
    </message>
    <message>
        <source>&apos;%@&apos; should be &apos;%@&apos;</source>
        <translation>&apos;%@&apos; ควรเป็น &apos;%@&apos;</translation>
    </message>
    <message>
        <source>missing &apos;%@&apos;</source>
        <translation>ขาด &apos;%@&apos;</translation>
    </message>
    <message>
        <source>extra &apos;%@&apos;</source>
        <translation>เกิน &apos;%@&apos;</translation>
    </message>
    <message>
        <source>Segment %@</source>
        <translation>ช่วง %@</translation>
    </message>
    <message>
        <source>lesson %@</source>
        <translation>บทเรียน %@</translation>
    </message>
    <message>
        <source>Lesson %@</source>
        <translation>บทเรียน %@</translation>
    </message>
    <message>
        <source>Checked: no mistakes</source>
        <translation>ตรวจแล้ว: ไม่มีข้อผิดพลาด</translation>
    </message>
    <message>
        <source>Checked: typos only</source>
        <translation>ตรวจแล้ว: มีเพียงคำพิมพ์ผิด</translation>
    </message>
    <message>
        <source>Checked: mistakes</source>
        <translation>ตรวจแล้ว: มีข้อผิดพลาด</translation>
    </message>
    <message>
        <source>Checking</source>
        <translation>การตรวจ</translation>
    </message>
    <message>
        <source>Count punctuation</source>
        <translation>นับเครื่องหมายวรรคตอน</translation>
    </message>
    <message>
        <source>Typo weight:</source>
        <translation>น้ำหนักของคำพิมพ์ผิด:</translation>
    </message>
    <message>
        <source>Count case</source>
        <translation>นับตัวพิมพ์ใหญ่-เล็ก</translation>
    </message>
    <message>
        <source>Check as I type</source>
        <translation>ตรวจขณะพิมพ์</translation>
    </message>
    <message>
        <source>Check segment</source>
        <translation>ตรวจช่วง</translation>
    </message>
    <message>
        <source>Show next word</source>
        <translation>แสดงคำถัดไป</translation>
    </message>
    <message>
        <source>Recovered typing from your last session</source>
        <translation>กู้คืนข้อความที่พิมพ์จากครั้งก่อนแล้ว</translation>
    </message>
    <message>
        <source>Typing since the last save is not protected: the journal cannot be written</source>
        <translation>ข้อความที่พิมพ์หลังการบันทึกครั้งล่าสุดไม่ได้รับการป้องกัน: ไม่สามารถเขียนบันทึกการพิมพ์ได้</translation>
    </message>
    <message>
        <source>Your typing could not be saved to disk; Kelmora will try again at the next save</source>
        <translation>ไม่สามารถบันทึกสิ่งที่คุณพิมพ์ลงดิสก์ได้ Kelmora จะลองอีกครั้งในการบันทึกครั้งถัดไป</translation>
    </message>
    <message>
        <source>The last save failed: what you typed since then may not be on disk.</source>
        <translation>การบันทึกครั้งล่าสุดล้มเหลว: สิ่งที่คุณพิมพ์หลังจากนั้นอาจไม่ได้อยู่บนดิสก์</translation>
    </message>
    <message>
        <source>The transcript is larger than 16 MB and was not read.</source>
        <translation>ไฟล์ถอดความมีขนาดใหญ่กว่า 16 MB จึงไม่ได้อ่าน</translation>
    </message>
    <message>
        <source>The transcript is not a regular file and was not read.</source>
        <translation>ไฟล์ถอดความไม่ใช่ไฟล์ปกติ จึงไม่ได้อ่าน</translation>
    </message>
    <message>
        <source>Recover Earlier &amp;Dictation…</source>
        <translation>กู้คืนการเขียนตามคำบอกก่อนหน้า(&amp;D)…</translation>
    </message>
    <message>
        <source>A saved dictation that could not be used was set aside; File → Recover Earlier Dictation… brings it back</source>
        <translation>การเขียนตามคำบอกที่บันทึกไว้ซึ่งใช้ไม่ได้ถูกเก็บแยกไว้แล้ว ไฟล์ → กู้คืนการเขียนตามคำบอกก่อนหน้า… จะนำกลับมา</translation>
    </message>
    <message>
        <source>Recover Earlier Dictation</source>
        <translation>กู้คืนการเขียนตามคำบอกก่อนหน้า</translation>
    </message>
    <message>
        <source>Versions of this lesson&apos;s dictation that were set aside, newest first:</source>
        <translation>ฉบับที่ถูกเก็บแยกไว้ของการเขียนตามคำบอกในบทเรียนนี้ ใหม่สุดก่อน:</translation>
    </message>
    <message>
        <source>Recover</source>
        <translation>กู้คืน</translation>
    </message>
    <message>
        <source>No earlier dictation of this recording was set aside.</source>
        <translation>ไม่มีการเขียนตามคำบอกก่อนหน้าของไฟล์เสียงนี้ที่ถูกเก็บแยกไว้</translation>
    </message>
    <message>
        <source>A saved dictation that could not be used could not be set aside; it is not saved over</source>
        <translation>ไม่สามารถเก็บแยกการเขียนตามคำบอกที่บันทึกไว้ซึ่งใช้ไม่ได้ จะไม่บันทึกทับ</translation>
    </message>
    <message>
        <source>Kelmora found a dictation typed for this recording at %1 (last saved %2). Use it?</source>
        <translation>Kelmora พบคำบอกที่พิมพ์ไว้สำหรับเสียงบันทึกนี้ที่ %1 (บันทึกล่าสุดเมื่อ %2) ต้องการใช้หรือไม่</translation>
    </message>
    <message>
        <source>Use It</source>
        <translation>ใช้</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>ไม่ใช่ตอนนี้</translation>
    </message>
    <message>
        <source>Spli&amp;t Segment at Play Head</source>
        <translation>แบ่งช่วงที่ตำแหน่งการเล่น(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Merge with Next Segment</source>
        <translation>รวมกับช่วงถัดไป(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>เลิกทำ(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>ทำซ้ำ(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Undo %@</source>
        <translation>เลิกทำ %@(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo %@</source>
        <translation>ทำซ้ำ %@(&amp;R)</translation>
    </message>
    <message>
        <source>Split Segment</source>
        <translation>แบ่งช่วง</translation>
    </message>
    <message>
        <source>Merge Segments</source>
        <translation>รวมช่วง</translation>
    </message>
    <message>
        <source>Move Boundary</source>
        <translation>ย้ายขอบช่วง</translation>
    </message>
    <message>
        <source>Clear Dictation</source>
        <translation>ล้างการเขียนตามคำบอก</translation>
    </message>
    <message>
        <source>Import Dictation</source>
        <translation>นำเข้าการเขียนตามคำบอก</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>แบ่ง</translation>
    </message>
    <message>
        <source>Split the segment in two at the play head</source>
        <translation>แบ่งช่วงออกเป็นสองส่วนที่ตำแหน่งการเล่น</translation>
    </message>
    <message>
        <source>Nothing was split: each part of a segment must be at least 0.1 seconds long</source>
        <translation>ไม่ได้แบ่งช่วง: แต่ละส่วนของช่วงต้องยาวอย่างน้อย 0.1 วินาที</translation>
    </message>
    <message>
        <source>Move Segment Start &amp;Earlier</source>
        <translation>เลื่อนจุดเริ่มต้นของช่วงให้เร็วขึ้น(&amp;E)</translation>
    </message>
    <message>
        <source>Move Segment Start &amp;Later</source>
        <translation>เลื่อนจุดเริ่มต้นของช่วงให้ช้าลง(&amp;L)</translation>
    </message>
    <message>
        <source>Split segment</source>
        <translation>แบ่งช่วง</translation>
    </message>
    <message>
        <source>Merge with next</source>
        <translation>รวมกับช่วงถัดไป</translation>
    </message>
    <message>
        <source>Practice</source>
        <translation>การฝึก</translation>
    </message>
    <message>
        <source>Pause after each repetition:</source>
        <translation>หยุดพักหลังเล่นซ้ำแต่ละรอบ:</translation>
    </message>
    <message>
        <source>Play the first repetition slower</source>
        <translation>เล่นรอบแรกให้ช้าลง</translation>
    </message>
    <message>
        <source>Step back when playing resumes:</source>
        <translation>ถอยกลับเมื่อเล่นต่อ:</translation>
    </message>
    <message>
        <source>Play only while the play key is held</source>
        <translation>เล่นเฉพาะขณะกดปุ่มเล่นค้างไว้</translation>
    </message>
    <message>
        <source>A sentence is hard below:</source>
        <translation>ประโยคยากเมื่อคะแนนต่ำกว่า:</translation>
    </message>
    <message>
        <source>s</source>
        <translation>วินาที</translation>
    </message>
    <message>
        <source>Until I move on</source>
        <translation>จนกว่าจะไปต่อ</translation>
    </message>
    <message>
        <source>Practise &amp;Hard Sentences</source>
        <translation>ฝึกประโยคที่ยาก(&amp;H)</translation>
    </message>
    <message>
        <source>Practise hard sentences</source>
        <translation>ฝึกประโยคที่ยาก</translation>
    </message>
    <message>
        <source>Hard sentences: %d left</source>
        <translation>ประโยคที่ยาก: เหลือ %d</translation>
    </message>
    <message>
        <source>No hard sentences in this lesson</source>
        <translation>บทเรียนนี้ไม่มีประโยคที่ยาก</translation>
    </message>
    <message>
        <source>%d due for review</source>
        <translation>ถึงเวลาทบทวน %d</translation>
    </message>
    <message>
        <source>Checked once</source>
        <translation>ตรวจแล้ว 1 ครั้ง</translation>
    </message>
    <message>
        <source>Checked %d times</source>
        <translation>ตรวจแล้ว %d ครั้ง</translation>
    </message>
    <message>
        <source>1 hint</source>
        <translation>คำใบ้ 1 ครั้ง</translation>
    </message>
    <message>
        <source>%d hints</source>
        <translation>คำใบ้ %d ครั้ง</translation>
    </message>
    <message>
        <source>last %@, best %@</source>
        <translation>ล่าสุด %@, ดีที่สุด %@</translation>
    </message>
    <message>
        <source>%d min %d s</source>
        <translation>%d นาที %d วินาที</translation>
    </message>
    <message>
        <source>%d s</source>
        <translation>%d วินาที</translation>
    </message>
    <message>
        <source>Your practice record could not be saved: %@</source>
        <translation>บันทึกประวัติการฝึกไม่ได้: %@</translation>
    </message>
    <message>
        <source>Your practice record could not be read and is not saved over: %@</source>
        <translation>อ่านประวัติการฝึกไม่ได้ และจะไม่เขียนทับ: %@</translation>
    </message>
    <message>
        <source>Cut Segments at &amp;Sentences</source>
        <translation>ตัดช่วงตามประโยค(&amp;S)</translation>
    </message>
    <message>
        <source>Cut at Sentences</source>
        <translation>ตัดตามประโยค</translation>
    </message>
    <message>
        <source>Segments now: %d</source>
        <translation>จำนวนช่วงตอนนี้: %d</translation>
    </message>
    <message>
        <source>Uncertain segment starts: %@</source>
        <translation>จุดเริ่มช่วงที่ไม่แน่นอน: %@</translation>
    </message>
    <message>
        <source>&amp;Align Again…</source>
        <translation>จัดแนวอีกครั้ง(&amp;A)…</translation>
    </message>
    <message>
        <source>Align Reference Text</source>
        <translation>จัดแนวข้อความอ้างอิง</translation>
    </message>
    <message>
        <source>Kelmora can place each sentence of “%@” on the recording. Which language is the lesson in?</source>
        <translation>Kelmora สามารถวางแต่ละประโยคของ “%@” บนเสียงบันทึกได้ บทเรียนนี้เป็นภาษาอะไร</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>ภาษา(&amp;L):</translation>
    </message>
    <message>
        <source>Align</source>
        <translation>จัดแนว</translation>
    </message>
    <message>
        <source>Don’t Align</source>
        <translation>ไม่จัดแนว</translation>
    </message>
    <message>
        <source>Placing the sentences on the recording…</source>
        <translation>กำลังวางประโยคบนเสียงบันทึก…</translation>
    </message>
    <message>
        <source>Aligned %d sentences, %d uncertain</source>
        <translation>จัดแนวแล้ว %d ประโยค ไม่แน่นอน %d ประโยค</translation>
    </message>
    <message>
        <source>The reference text could not be aligned</source>
        <translation>ไม่สามารถจัดแนวข้อความอ้างอิงได้</translation>
    </message>
    <message>
        <source>%@ The reference text stays as it was.</source>
        <translation>%@ ข้อความอ้างอิงยังคงเหมือนเดิม</translation>
    </message>
</context>
</TS>
