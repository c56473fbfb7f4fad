<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="vi" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Kelmora</source>
        <translation>Kelmora</translation>
    </message>
    <message>
        <source>No audio file opened</source>
        <translation>Chưa mở tệp âm thanh nào</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Tùy chọn</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Trợ giúp</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Hủy</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Lưu</translation>
    </message>
    <message>
        <source>Don&apos;t Save</source>
        <translation>Không lưu</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>Để sau</translation>
    </message>
    <message>
        <source>Save Dictation?</source>
        <translation>Lưu bài chính tả?</translation>
    </message>
    <message>
        <source>Do you want to save the dictation before closing?</source>
        <translation>Bạn có muốn lưu bài chính tả trước khi đóng không?</translation>
    </message>
    <message>
        <source>Error Opening File</source>
        <translation>Lỗi khi mở tệp</translation>
    </message>
    <message>
        <source>Invalid File Type</source>
        <translation>Loại tệp không hợp lệ</translation>
    </message>
    <message>
        <source>Please select a supported audio file</source>
        <translation>Vui lòng chọn một tệp âm thanh được hỗ trợ</translation>
    </message>
    <message>
        <source>File Access Error</source>
        <translation>Lỗi truy cập tệp</translation>
    </message>
    <message>
        <source>File Too Large</source>
        <translation>Tệp quá lớn</translation>
    </message>
    <message>
        <source>Please select an audio file smaller than %llu MB</source>
        <translation>Vui lòng chọn tệp âm thanh nhỏ hơn %llu MB</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Lỗi</translation>
    </message>
    <message>
        <source>Failed to process audio file</source>
        <translation>Không thể xử lý tệp âm thanh</translation>
    </message>
    <message>
        <source>Please grant access to the folder containing your audio files</source>
        <translation>Vui lòng cấp quyền truy cập vào thư mục chứa các tệp âm thanh của bạn</translation>
    </message>
    <message>
        <source>Grant Access</source>
        <translation>Cấp quyền truy cập</translation>
    </message>
    <message>
        <source>Save Transcript</source>
        <translation>Lưu bản chép lời</translation>
    </message>
    <message>
        <source>Save Error</source>
        <translation>Lỗi khi lưu</translation>
    </message>
    <message>
        <source>Error writing to file</source>
        <translation>Lỗi khi ghi vào tệp</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Cảnh báo</translation>
    </message>
    <message>
        <source>Please open an audio file first</source>
        <translation>Vui lòng mở một tệp âm thanh trước</translation>
    </message>
    <message>
        <source>Failed to load transcription</source>
        <translation>Không thể tải bản chép lời</translation>
    </message>
    <message>
        <source>Invalid File</source>
        <translation>Tệp không hợp lệ</translation>
    </message>
    <message>
        <source>lyric duration is too long</source>
        <translation>thời lượng lời bài hát quá dài</translation>
    </message>
    <message>
        <source>Are you sure to clear dictation?</source>
        <translation>Bạn có chắc muốn xóa bài chính tả không?</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Số mẫu</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Thời lượng</translation>
    </message>
    <message>
        <source>Segments</source>
        <translation>Số đoạn</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Phát</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Tạm dừng</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>Lặp lại</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Liên tục</translation>
    </message>
    <message>
        <source>Segment</source>
        <translation>Đoạn</translation>
    </message>
    <message>
        <source>Dictation</source>
        <translation>Chính tả</translation>
    </message>
    <message>
        <source>|Dictation</source>
        <translation>|Chính tả</translation>
    </message>
    <message>
        <source>English</source>
        <translation>Tiếng Anh</translation>
    </message>
    <message>
        <source>Chinese(Simplified)</source>
        <translation>Tiếng Trung (Giản thể)</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>Tiếng Tây Ban Nha</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>Tiếng Nhật</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>Tiếng Hàn</translation>
    </message>
    <message>
        <source>German</source>
        <translation>Tiếng Đức</translation>
    </message>
    <message>
        <source>French</source>
        <translation>Tiếng Pháp</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation>Tiếng Nga</translation>
    </message>
    <message>
        <source>Thai</source>
        <translation>Tiếng Thái</translation>
    </message>
    <message>
        <source>Vietnamese</source>
        <translation>Tiếng Việt</translation>
    </message>
    <message>
        <source>Input must not exceed 6 digits</source>
        <translation>Giá trị nhập không được vượt quá 6 chữ số</translation>
    </message>
    <message>
        <source>Invalid input: %@</source>
        <translation>Giá trị nhập không hợp lệ: %@</translation>
    </message>
    <message>
        <source>Settings Reset</source>
        <translation>Đã đặt lại cài đặt</translation>
    </message>
    <message>
        <source>All settings have been restored to their default values</source>
        <translation>Tất cả cài đặt đã được khôi phục về giá trị mặc định</translation>
    </message>
    <message>
        <source>Warnning</source>
        <translation>Cảnh báo</translation>
    </message>
    <message>
        <source>Please restart the app to apply the new language.</source>
        <translation>Vui lòng khởi động lại ứng dụng để áp dụng ngôn ngữ mới.</translation>
    </message>
    <message>
        <source>Restart Now</source>
        <translation>Khởi động lại ngay</translation>
    </message>
    <message>
        <source>Error checking for updates</source>
        <translation>Lỗi khi kiểm tra bản cập nhật</translation>
    </message>
    <message>
        <source>Error parsing updates JSON</source>
        <translation>Lỗi khi phân tích JSON cập nhật</translation>
    </message>
    <message>
        <source>App is already the latest version</source>
        <translation>Ứng dụng đã là phiên bản mới nhất</translation>
    </message>
    <message>
        <source>Update Available</source>
        <translation>Có bản cập nhật</translation>
    </message>
    <message>
        <source>Version %@ is available.

Release Notes:
%@</source>
        <translation>Đã có phiên bản %@.

Ghi chú phát hành:
%@</translation>
    </message>
    <message>
        <source>No release notes available</source>
        <translation>Không có ghi chú phát hành</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Cập nhật</translation>
    </message>
    <message>
        <source>Audio Files</source>
        <translation>Tệp âm thanh</translation>
    </message>
    <message>
        <source>Analysing audio</source>
        <translation>Đang phân tích âm thanh</translation>
    </message>
    <message>
        <source>Waveform</source>
        <translation>Dạng sóng</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Tệp</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Mở…</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Mở &amp;gần đây</translation>
    </message>
    <message>
        <source>&amp;Clear Menu</source>
        <translation>&amp;Xóa menu</translation>
    </message>
    <message>
        <source>&amp;Export Dictation…</source>
        <translation>&amp;Xuất bài chính tả…</translation>
    </message>
    <message>
        <source>&amp;Quit Kelmora</source>
        <translation>&amp;Thoát Kelmora</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Xem</translation>
    </message>
    <message>
        <source>&amp;Window Size</source>
        <translation>&amp;Kích thước cửa sổ</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>&amp;Tùy chọn…</translation>
    </message>
    <message>
        <source>&amp;Check for Updates…</source>
        <translation>&amp;Kiểm tra bản cập nhật…</translation>
    </message>
    <message>
        <source>Kelmora &amp;Help</source>
        <translation>&amp;Trợ giúp Kelmora</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Mở</translation>
    </message>
    <message>
        <source>Play/Pause</source>
        <translation>Phát/Tạm dừng</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Xuất</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Cài đặt</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Nhập</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Xóa</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>Nhạc</translation>
    </message>
    <message>
        <source>Open an audio file</source>
        <translation>Mở một tệp âm thanh</translation>
    </message>
    <message>
        <source>Play or pause the current segment</source>
        <translation>Phát hoặc tạm dừng đoạn hiện tại</translation>
    </message>
    <message>
        <source>Repeat each segment, or play on to the next</source>
        <translation>Lặp lại từng đoạn hoặc phát tiếp sang đoạn sau</translation>
    </message>
    <message>
        <source>Export the dictation as an LRC file</source>
        <translation>Xuất bài chính tả dưới dạng tệp LRC</translation>
    </message>
    <message>
        <source>Open the preferences</source>
        <translation>Mở phần tùy chọn</translation>
    </message>
    <message>
        <source>Import a dictation from an LRC file</source>
        <translation>Nhập bài chính tả từ tệp LRC</translation>
    </message>
    <message>
        <source>Clear the dictation</source>
        <translation>Xóa bài chính tả</translation>
    </message>
    <message>
        <source>Open a file from your music folder</source>
        <translation>Mở một tệp từ thư mục nhạc của bạn</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>Thanh công cụ</translation>
    </message>
    <message>
        <source>Status bar</source>
        <translation>Thanh trạng thái</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Chung</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Giao diện</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>Phím tắt</translation>
    </message>
    <message>
        <source>Shortest segment (seconds)</source>
        <translation>Đoạn ngắn nhất (giây)</translation>
    </message>
    <message>
        <source>Play speed</source>
        <translation>Tốc độ phát</translation>
    </message>
    <message>
        <source>Plays of each segment in repeat mode</source>
        <translation>Số lần phát mỗi đoạn ở chế độ lặp lại</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Ngôn ngữ</translation>
    </message>
    <message>
        <source>A new language shows after a restart.</source>
        <translation>Ngôn ngữ mới sẽ hiển thị sau khi khởi động lại.</translation>
    </message>
    <message>
        <source>Table background</source>
        <translation>Nền bảng</translation>
    </message>
    <message>
        <source>Text colour</source>
        <translation>Màu chữ</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Phông chữ</translation>
    </message>
    <message>
        <source>Show line numbers</source>
        <translation>Hiện số dòng</translation>
    </message>
    <message>
        <source>Show the waveform</source>
        <translation>Hiện dạng sóng</translation>
    </message>
    <message>
        <source>Show the status bar</source>
        <translation>Hiện thanh trạng thái</translation>
    </message>
    <message>
        <source>Previous segment</source>
        <translation>Đoạn trước</translation>
    </message>
    <message>
        <source>Next segment</source>
        <translation>Đoạn tiếp theo</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>Phát hoặc tạm dừng</translation>
    </message>
    <message>
        <source>Repeat mode</source>
        <translation>Chế độ lặp lại</translation>
    </message>
    <message>
        <source>First segment</source>
        <translation>Đoạn đầu tiên</translation>
    </message>
    <message>
        <source>Split the audio again</source>
        <translation>Chia lại âm thanh</translation>
    </message>
    <message>
        <source>Click a field and press the new key. Click elsewhere to finish.</source>
        <translation>Nhấp vào một ô rồi nhấn phím mới. Nhấp ra chỗ khác để hoàn tất.</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <translation>Khôi phục mặc định</translation>
    </message>
    <message>
        <source>Choose the dictation font</source>
        <translation>Chọn phông chữ cho bài chính tả</translation>
    </message>
    <message>
        <source>Transcripts</source>
        <translation>Bản chép lời</translation>
    </message>
    <message>
        <source>The lesson is still being analysed. Import the dictation once it has opened.</source>
        <translation>Bài học vẫn đang được phân tích. Hãy nhập bài chính tả sau khi bài học đã mở xong.</translation>
    </message>
    <message>
        <source>Open a recording with %@ or drop it here</source>
        <translation>Mở một bản ghi âm bằng %@ hoặc thả tệp vào đây</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Sửa</translation>
    </message>
    <message>
        <source>&amp;Playback</source>
        <translation>&amp;Phát</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Trợ &amp;giúp</translation>
    </message>
    <message>
        <source>&amp;Import Dictation…</source>
        <translation>&amp;Nhập bài chính tả…</translation>
    </message>
    <message>
        <source>Import from &amp;Music Folder…</source>
        <translation>Mở từ thư mục n&amp;hạc…</translation>
    </message>
    <message>
        <source>&amp;Clear Dictation…</source>
        <translation>&amp;Xóa bài chính tả…</translation>
    </message>
    <message>
        <source>&amp;Play/Pause</source>
        <translation>&amp;Phát/Tạm dừng</translation>
    </message>
    <message>
        <source>Pre&amp;vious Segment</source>
        <translation>Đoạn &amp;trước</translation>
    </message>
    <message>
        <source>&amp;Next Segment</source>
        <translation>Đoạn tiếp th&amp;eo</translation>
    </message>
    <message>
        <source>&amp;Repeat Mode</source>
        <translation>Chế độ &amp;lặp lại</translation>
    </message>
    <message>
        <source>&amp;First Segment</source>
        <translation>Đoạn đầ&amp;u tiên</translation>
    </message>
    <message>
        <source>&amp;Split the Audio Again</source>
        <translation>&amp;Chia lại âm thanh</translation>
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
        <translation>Hướng dẫn nhanh:

1. Mở tệp âm thanh: %@
2. Phát/Tạm dừng: %@
3. Đoạn tiếp theo: %@
4. Đoạn trước: %@
5. Chế độ lặp lại: %@
6. Đoạn đầu tiên: %@
7. Chia lại âm thanh: %@
8. Xuất bài chính tả: %@

Nếu có bất kỳ câu hỏi nào, hãy gửi email cho tôi: support@kelmora.app.</translation>
    </message>
    <message>
        <source>&amp;Attach Reference Text…</source>
        <translation>Đính &amp;kèm văn bản tham chiếu…</translation>
    </message>
    <message>
        <source>Remo&amp;ve Reference Text</source>
        <translation>&amp;Bỏ văn bản tham chiếu</translation>
    </message>
    <message>
        <source>Chec&amp;k Segment</source>
        <translation>Kiểm t&amp;ra đoạn</translation>
    </message>
    <message>
        <source>Show Next &amp;Word</source>
        <translation>&amp;Hiện từ tiếp theo</translation>
    </message>
    <message>
        <source>Reference</source>
        <translation>Tham chiếu</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>Kiểm tra</translation>
    </message>
    <message>
        <source>Attach the lesson&apos;s text (.txt, .srt, .vtt or .lrc) to check your typing</source>
        <translation>Đính kèm văn bản của bài học (.txt, .srt, .vtt hoặc .lrc) để kiểm tra những gì bạn gõ</translation>
    </message>
    <message>
        <source>Check the current segment against the reference text</source>
        <translation>Kiểm tra đoạn hiện tại với văn bản tham chiếu</translation>
    </message>
    <message>
        <source>Reference Texts</source>
        <translation>Văn bản tham chiếu</translation>
    </message>
    <message>
        <source>Cannot Read Reference Text</source>
        <translation>Không thể đọc văn bản tham chiếu</translation>
    </message>
    <message>
        <source>Cannot Store Reference Text</source>
        <translation>Không thể lưu văn bản tham chiếu</translation>
    </message>
    <message>
        <source>“%@” could not be read.</source>
        <translation>Không thể đọc “%@”.</translation>
    </message>
    <message>
        <source>“%@” is not a .txt, .srt, .vtt or .lrc file.</source>
        <translation>“%@” không phải là tệp .txt, .srt, .vtt hoặc .lrc.</translation>
    </message>
    <message>
        <source>“%@” is larger than 16 MB.</source>
        <translation>“%@” lớn hơn 16 MB.</translation>
    </message>
    <message>
        <source>“%@” is not a text file.</source>
        <translation>“%@” không phải là tệp văn bản.</translation>
    </message>
    <message>
        <source>“%@” is not UTF-8 text.</source>
        <translation>“%@” không phải là văn bản UTF-8.</translation>
    </message>
    <message>
        <source>“%@” is empty.</source>
        <translation>“%@” trống.</translation>
    </message>
    <message>
        <source>“%@” does not start with WEBVTT.</source>
        <translation>“%@” không bắt đầu bằng WEBVTT.</translation>
    </message>
    <message>
        <source>“%@” has no text within the recording.</source>
        <translation>“%@” không có văn bản nào trong khoảng thời gian của bản ghi âm.</translation>
    </message>
    <message>
        <source>Press %@ to check this segment.</source>
        <translation>Nhấn %@ để kiểm tra đoạn này.</translation>
    </message>
    <message>
        <source>Next word: %@</source>
        <translation>Từ tiếp theo: %@</translation>
    </message>
    <message>
        <source>Every word is typed.</source>
        <translation>Đã gõ đủ mọi từ.</translation>
    </message>
    <message>
        <source>No reference words for this segment.</source>
        <translation>Không có từ tham chiếu cho đoạn này.</translation>
    </message>
    <message>
        <source>No mistakes.</source>
        <translation>Không có lỗi.</translation>
    </message>
    <message>
        <source>1 mistake: %@.</source>
        <translation>1 lỗi: %@.</translation>
    </message>
    <message>
        <source>%@ mistakes: %@.</source>
        <translation>%@ lỗi: %@.</translation>
    </message>
    <message>
        <source>&apos;%@&apos; should be &apos;%@&apos;</source>
        <translation>&apos;%@&apos; phải là &apos;%@&apos;</translation>
    </message>
    <message>
        <source>missing &apos;%@&apos;</source>
        <translation>thiếu &apos;%@&apos;</translation>
    </message>
    <message>
        <source>extra &apos;%@&apos;</source>
        <translation>thừa &apos;%@&apos;</translation>
    </message>
    <message>
        <source>Segment %@</source>
        <translation>Đoạn %@</translation>
    </message>
    <message>
        <source>lesson %@</source>
        <translation>bài học %@</translation>
    </message>
    <message>
        <source>Lesson %@</source>
        <translation>Bài học %@</translation>
    </message>
    <message>
        <source>Checked: no mistakes</source>
        <translation>Đã kiểm tra: không có lỗi</translation>
    </message>
    <message>
        <source>Checked: typos only</source>
        <translation>Đã kiểm tra: chỉ có lỗi gõ</translation>
    </message>
    <message>
        <source>Checked: mistakes</source>
        <translation>Đã kiểm tra: có lỗi</translation>
    </message>
    <message>
        <source>Checking</source>
        <translation>Kiểm tra</translation>
    </message>
    <message>
        <source>Count punctuation</source>
        <translation>Tính dấu câu</translation>
    </message>
    <message>
        <source>Typo weight:</source>
        <translation>Trọng số lỗi gõ:</translation>
    </message>
    <message>
        <source>Count case</source>
        <translation>Phân biệt chữ hoa, chữ thường</translation>
    </message>
    <message>
        <source>Check as I type</source>
        <translation>Kiểm tra khi đang gõ</translation>
    </message>
    <message>
        <source>Check segment</source>
        <translation>Kiểm tra đoạn</translation>
    </message>
    <message>
        <source>Show next word</source>
        <translation>Hiện từ tiếp theo</translation>
    </message>
    <message>
        <source>Recovered typing from your last session</source>
        <translation>Đã khôi phục nội dung gõ từ phiên trước</translation>
    </message>
    <message>
        <source>Typing since the last save is not protected: the journal cannot be written</source>
        <translation>Nội dung gõ từ lần lưu gần nhất chưa được bảo vệ: không thể ghi nhật ký</translation>
    </message>
    <message>
        <source>Your typing could not be saved to disk; Kelmora will try again at the next save</source>
        <translation>Không thể lưu nội dung bạn gõ vào ổ đĩa; Kelmora sẽ thử lại ở lần lưu tiếp theo</translation>
    </message>
    <message>
        <source>The last save failed: what you typed since then may not be on disk.</source>
        <translation>Lần lưu gần nhất đã thất bại: những gì bạn gõ từ đó có thể chưa được ghi vào ổ đĩa.</translation>
    </message>
    <message>
        <source>The transcript is larger than 16 MB and was not read.</source>
        <translation>Bản chép lời lớn hơn 16 MB nên không được đọc.</translation>
    </message>
    <message>
        <source>The transcript is not a regular file and was not read.</source>
        <translation>Bản chép lời không phải là tệp thông thường nên không được đọc.</translation>
    </message>
    <message>
        <source>Recover Earlier &amp;Dictation…</source>
        <translation>Khôi phục bài &amp;chép chính tả trước…</translation>
    </message>
    <message>
        <source>A saved dictation that could not be used was set aside; File → Recover Earlier Dictation… brings it back</source>
        <translation>Một bài chép chính tả đã lưu không dùng được đã được để riêng; Tệp → Khôi phục bài chép chính tả trước… sẽ lấy lại</translation>
    </message>
    <message>
        <source>Recover Earlier Dictation</source>
        <translation>Khôi phục bài chép chính tả trước</translation>
    </message>
    <message>
        <source>Versions of this lesson&apos;s dictation that were set aside, newest first:</source>
        <translation>Các phiên bản đã để riêng của bài chép chính tả trong bài học này, mới nhất trước:</translation>
    </message>
    <message>
        <source>Recover</source>
        <translation>Khôi phục</translation>
    </message>
    <message>
        <source>No earlier dictation of this recording was set aside.</source>
        <translation>Không có bài chép chính tả trước nào của bản ghi âm này được để riêng.</translation>
    </message>
    <message>
        <source>A saved dictation that could not be used could not be set aside; it is not saved over</source>
        <translation>Không thể để riêng một bài chép chính tả đã lưu không dùng được; nó không bị ghi đè</translation>
    </message>
    <message>
        <source>Kelmora found a dictation typed for this recording at %1 (last saved %2). Use it?</source>
        <translation>Kelmora đã tìm thấy một bài chính tả được gõ cho bản ghi âm này tại %1 (lưu lần cuối %2). Dùng bài này?</translation>
    </message>
    <message>
        <source>Use It</source>
        <translation>Dùng</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>Để sau</translation>
    </message>
    <message>
        <source>Spli&amp;t Segment at Play Head</source>
        <translation>Tách đoạn tại &amp;vị trí phát</translation>
    </message>
    <message>
        <source>&amp;Merge with Next Segment</source>
        <translation>&amp;Gộp với đoạn tiếp theo</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Hoàn tác</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Làm lại</translation>
    </message>
    <message>
        <source>&amp;Undo %@</source>
        <translation>&amp;Hoàn tác %@</translation>
    </message>
    <message>
        <source>&amp;Redo %@</source>
        <translation>&amp;Làm lại %@</translation>
    </message>
    <message>
        <source>Split Segment</source>
        <translation>Tách đoạn</translation>
    </message>
    <message>
        <source>Merge Segments</source>
        <translation>Gộp đoạn</translation>
    </message>
    <message>
        <source>Move Boundary</source>
        <translation>Dời ranh giới</translation>
    </message>
    <message>
        <source>Clear Dictation</source>
        <translation>Xóa bài chính tả</translation>
    </message>
    <message>
        <source>Import Dictation</source>
        <translation>Nhập bài chính tả</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>Tách</translation>
    </message>
    <message>
        <source>Split the segment in two at the play head</source>
        <translation>Tách đoạn làm hai tại vị trí phát</translation>
    </message>
    <message>
        <source>Nothing was split: each part of a segment must be at least 0.1 seconds long</source>
        <translation>Không tách đoạn: mỗi phần của một đoạn phải dài ít nhất 0,1 giây</translation>
    </message>
    <message>
        <source>Move Segment Start &amp;Earlier</source>
        <translation>Dời điểm bắt đầu đoạn &amp;sớm hơn</translation>
    </message>
    <message>
        <source>Move Segment Start &amp;Later</source>
        <translation>Dời điểm bắt đầu đoạn &amp;muộn hơn</translation>
    </message>
    <message>
        <source>Split segment</source>
        <translation>Tách đoạn</translation>
    </message>
    <message>
        <source>Merge with next</source>
        <translation>Gộp với đoạn sau</translation>
    </message>
    <message>
        <source>Practice</source>
        <translation>Luyện tập</translation>
    </message>
    <message>
        <source>Pause after each repetition:</source>
        <translation>Nghỉ sau mỗi lần lặp:</translation>
    </message>
    <message>
        <source>Play the first repetition slower</source>
        <translation>Phát lần lặp đầu tiên chậm hơn</translation>
    </message>
    <message>
        <source>Step back when playing resumes:</source>
        <translation>Lùi lại khi phát tiếp:</translation>
    </message>
    <message>
        <source>Play only while the play key is held</source>
        <translation>Chỉ phát khi giữ phím phát</translation>
    </message>
    <message>
        <source>A sentence is hard below:</source>
        <translation>Câu khó khi điểm dưới:</translation>
    </message>
    <message>
        <source>s</source>
        <translation>giây</translation>
    </message>
    <message>
        <source>Until I move on</source>
        <translation>Cho đến khi tôi chuyển tiếp</translation>
    </message>
    <message>
        <source>Practise &amp;Hard Sentences</source>
        <translation>&amp;Luyện các câu khó</translation>
    </message>
    <message>
        <source>Practise hard sentences</source>
        <translation>Luyện các câu khó</translation>
    </message>
    <message>
        <source>Hard sentences: %d left</source>
        <translation>Câu khó: còn %d</translation>
    </message>
    <message>
        <source>No hard sentences in this lesson</source>
        <translation>Bài học này không có câu khó</translation>
    </message>
    <message>
        <source>%d due for review</source>
        <translation>%d câu cần ôn lại</translation>
    </message>
    <message>
        <source>Checked once</source>
        <translation>Đã kiểm tra một lần</translation>
    </message>
    <message>
        <source>Checked %d times</source>
        <translation>Đã kiểm tra %d lần</translation>
    </message>
    <message>
        <source>1 hint</source>
        <translation>1 gợi ý</translation>
    </message>
    <message>
        <source>%d hints</source>
        <translation>%d gợi ý</translation>
    </message>
    <message>
        <source>last %@, best %@</source>
        <translation>lần cuối %@, cao nhất %@</translation>
    </message>
    <message>
        <source>%d min %d s</source>
        <translation>%d phút %d giây</translation>
    </message>
    <message>
        <source>%d s</source>
        <translation>%d giây</translation>
    </message>
    <message>
        <source>Your practice record could not be saved: %@</source>
        <translation>Không lưu được bản ghi luyện tập: %@</translation>
    </message>
    <message>
        <source>Your practice record could not be read and is not saved over: %@</source>
        <translation>Không đọc được bản ghi luyện tập và sẽ không ghi đè: %@</translation>
    </message>
    <message>
        <source>Cut Segments at &amp;Sentences</source>
        <translation>&amp;Cắt đoạn theo câu</translation>
    </message>
    <message>
        <source>Cut at Sentences</source>
        <translation>Cắt theo câu</translation>
    </message>
    <message>
        <source>Segments now: %d</source>
        <translation>Số đoạn hiện tại: %d</translation>
    </message>
    <message>
        <source>Uncertain segment starts: %@</source>
        <translation>Điểm bắt đầu đoạn chưa chắc chắn: %@</translation>
    </message>
    <message>
        <source>&amp;Align Again…</source>
        <translation>Căn chỉnh lạ&amp;i…</translation>
    </message>
    <message>
        <source>Align Reference Text</source>
        <translation>Căn chỉnh văn bản tham chiếu</translation>
    </message>
    <message>
        <source>Kelmora can place each sentence of “%@” on the recording. Which language is the lesson in?</source>
        <translation>Kelmora có thể đặt từng câu của “%@” lên bản ghi âm. Bài học bằng ngôn ngữ nào?</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Ngôn ngữ:</translation>
    </message>
    <message>
        <source>Align</source>
        <translation>Căn chỉnh</translation>
    </message>
    <message>
        <source>Don’t Align</source>
        <translation>Không căn chỉnh</translation>
    </message>
    <message>
        <source>Placing the sentences on the recording…</source>
        <translation>Đang đặt các câu lên bản ghi âm…</translation>
    </message>
    <message>
        <source>Aligned %d sentences, %d uncertain</source>
        <translation>Đã căn chỉnh %d câu, %d câu không chắc chắn</translation>
    </message>
    <message>
        <source>The reference text could not be aligned</source>
        <translation>Không thể căn chỉnh văn bản tham chiếu</translation>
    </message>
    <message>
        <source>%@ The reference text stays as it was.</source>
        <translation>%@ Văn bản tham chiếu vẫn giữ nguyên.</translation>
    </message>
</context>
</TS>
