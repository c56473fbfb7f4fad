<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Kelmora</source>
        <translation>Kelmora</translation>
    </message>
    <message>
        <source>No audio file opened</source>
        <translation>未打开音频文件</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>偏好设置</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>好</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Don&apos;t Save</source>
        <translation>不保存</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>稍后</translation>
    </message>
    <message>
        <source>Save Dictation?</source>
        <translation>保存听写？</translation>
    </message>
    <message>
        <source>Do you want to save the dictation before closing?</source>
        <translation>关闭前要保存听写内容吗？</translation>
    </message>
    <message>
        <source>Error Opening File</source>
        <translation>打开文件时出错</translation>
    </message>
    <message>
        <source>Invalid File Type</source>
        <translation>文件类型无效</translation>
    </message>
    <message>
        <source>Please select a supported audio file</source>
        <translation>请选择受支持的音频文件</translation>
    </message>
    <message>
        <source>File Access Error</source>
        <translation>文件访问错误</translation>
    </message>
    <message>
        <source>File Too Large</source>
        <translation>文件过大</translation>
    </message>
    <message>
        <source>Please select an audio file smaller than %llu MB</source>
        <translation>请选择小于 %llu MB 的音频文件</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Failed to process audio file</source>
        <translation>处理音频文件失败</translation>
    </message>
    <message>
        <source>Please grant access to the folder containing your audio files</source>
        <translation>请授予对存放音频文件的文件夹的访问权限</translation>
    </message>
    <message>
        <source>Grant Access</source>
        <translation>授予访问权限</translation>
    </message>
    <message>
        <source>Save Transcript</source>
        <translation>保存文稿</translation>
    </message>
    <message>
        <source>Save Error</source>
        <translation>保存出错</translation>
    </message>
    <message>
        <source>Error writing to file</source>
        <translation>写入文件时出错</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Please open an audio file first</source>
        <translation>请先打开音频文件</translation>
    </message>
    <message>
        <source>Failed to load transcription</source>
        <translation>加载文稿失败</translation>
    </message>
    <message>
        <source>Invalid File</source>
        <translation>无效文件</translation>
    </message>
    <message>
        <source>lyric duration is too long</source>
        <translation>歌词时长过长</translation>
    </message>
    <message>
        <source>Are you sure to clear dictation?</source>
        <translation>确定要清空听写内容吗？</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>采样数</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>时长</translation>
    </message>
    <message>
        <source>Segments</source>
        <translation>分段数</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>播放</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暂停</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>重复</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>连续</translation>
    </message>
    <message>
        <source>Segment</source>
        <translation>分段</translation>
    </message>
    <message>
        <source>Dictation</source>
        <translation>听写</translation>
    </message>
    <message>
        <source>|Dictation</source>
        <translation>|听写</translation>
    </message>
    <message>
        <source>English</source>
        <translation>英语</translation>
    </message>
    <message>
        <source>Chinese(Simplified)</source>
        <translation>简体中文</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>西班牙语</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>日语</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>韩语</translation>
    </message>
    <message>
        <source>German</source>
        <translation>德语</translation>
    </message>
    <message>
        <source>French</source>
        <translation>法语</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation>俄语</translation>
    </message>
    <message>
        <source>Thai</source>
        <translation>泰语</translation>
    </message>
    <message>
        <source>Vietnamese</source>
        <translation>越南语</translation>
    </message>
    <message>
        <source>Input must not exceed 6 digits</source>
        <translation>输入不能超过 6 位数字</translation>
    </message>
    <message>
        <source>Invalid input: %@</source>
        <translation>无效输入：%@</translation>
    </message>
    <message>
        <source>Settings Reset</source>
        <translation>设置已重置</translation>
    </message>
    <message>
        <source>All settings have been restored to their default values</source>
        <translation>所有设置均已恢复为默认值</translation>
    </message>
    <message>
        <source>Warnning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Please restart the app to apply the new language.</source>
        <translation>请重新启动应用以使用新语言。</translation>
    </message>
    <message>
        <source>Restart Now</source>
        <translation>立即重新启动</translation>
    </message>
    <message>
        <source>Error checking for updates</source>
        <translation>检查更新时出错</translation>
    </message>
    <message>
        <source>Error parsing updates JSON</source>
        <translation>解析更新信息（JSON）时出错</translation>
    </message>
    <message>
        <source>App is already the latest version</source>
        <translation>应用已是最新版本</translation>
    </message>
    <message>
        <source>Update Available</source>
        <translation>有可用更新</translation>
    </message>
    <message>
        <source>Version %@ is available.

Release Notes:
%@</source>
        <translation>版本 %@ 现已推出。

更新说明：
%@</translation>
    </message>
    <message>
        <source>No release notes available</source>
        <translation>暂无更新说明</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Audio Files</source>
        <translation>音频文件</translation>
    </message>
    <message>
        <source>Analysing audio</source>
        <translation>正在分析音频</translation>
    </message>
    <message>
        <source>Waveform</source>
        <translation>波形</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>打开(&amp;O)…</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>打开最近使用(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Clear Menu</source>
        <translation>清除菜单(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Export Dictation…</source>
        <translation>导出听写(&amp;E)…</translation>
    </message>
    <message>
        <source>&amp;Quit Kelmora</source>
        <translation>退出 Kelmora(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Window Size</source>
        <translation>窗口大小(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>偏好设置(&amp;P)…</translation>
    </message>
    <message>
        <source>&amp;Check for Updates…</source>
        <translation>检查更新(&amp;C)…</translation>
    </message>
    <message>
        <source>Kelmora &amp;Help</source>
        <translation>Kelmora 帮助(&amp;H)</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Play/Pause</source>
        <translation>播放/暂停</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>导出</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>导入</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清空</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>音乐</translation>
    </message>
    <message>
        <source>Open an audio file</source>
        <translation>打开音频文件</translation>
    </message>
    <message>
        <source>Play or pause the current segment</source>
        <translation>播放或暂停当前分段</translation>
    </message>
    <message>
        <source>Repeat each segment, or play on to the next</source>
        <translation>逐段重复播放，或继续播放下一段</translation>
    </message>
    <message>
        <source>Export the dictation as an LRC file</source>
        <translation>将听写导出为 LRC 文件</translation>
    </message>
    <message>
        <source>Open the preferences</source>
        <translation>打开偏好设置</translation>
    </message>
    <message>
        <source>Import a dictation from an LRC file</source>
        <translation>从 LRC 文件导入听写</translation>
    </message>
    <message>
        <source>Clear the dictation</source>
        <translation>清空听写内容</translation>
    </message>
    <message>
        <source>Open a file from your music folder</source>
        <translation>从音乐文件夹打开文件</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>工具栏</translation>
    </message>
    <message>
        <source>Status bar</source>
        <translation>状态栏</translation>
    </message>
    <message>
        <source>General</source>
        <translation>通用</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>外观</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>快捷键</translation>
    </message>
    <message>
        <source>Shortest segment (seconds)</source>
        <translation>最短分段（秒）</translation>
    </message>
    <message>
        <source>Play speed</source>
        <translation>播放速度</translation>
    </message>
    <message>
        <source>Plays of each segment in repeat mode</source>
        <translation>重复模式下每个分段的播放次数</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>A new language shows after a restart.</source>
        <translation>新语言将在重新启动后生效。</translation>
    </message>
    <message>
        <source>Table background</source>
        <translation>表格背景</translation>
    </message>
    <message>
        <source>Text colour</source>
        <translation>文字颜色</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>字体</translation>
    </message>
    <message>
        <source>Show line numbers</source>
        <translation>显示行号</translation>
    </message>
    <message>
        <source>Show the waveform</source>
        <translation>显示波形</translation>
    </message>
    <message>
        <source>Show the status bar</source>
        <translation>显示状态栏</translation>
    </message>
    <message>
        <source>Previous segment</source>
        <translation>上一分段</translation>
    </message>
    <message>
        <source>Next segment</source>
        <translation>下一分段</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>播放或暂停</translation>
    </message>
    <message>
        <source>Repeat mode</source>
        <translation>重复模式</translation>
    </message>
    <message>
        <source>First segment</source>
        <translation>第一个分段</translation>
    </message>
    <message>
        <source>Split the audio again</source>
        <translation>重新切分音频</translation>
    </message>
    <message>
        <source>Click a field and press the new key. Click elsewhere to finish.</source>
        <translation>点击一个输入框，然后按下新的按键。点击其他位置即可完成。</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <translation>恢复默认设置</translation>
    </message>
    <message>
        <source>Choose the dictation font</source>
        <translation>选择听写字体</translation>
    </message>
    <message>
        <source>Transcripts</source>
        <translation>文稿</translation>
    </message>
    <message>
        <source>The lesson is still being analysed. Import the dictation once it has opened.</source>
        <translation>课程仍在分析中。请在打开完成后再导入听写。</translation>
    </message>
    <message>
        <source>Open a recording with %@ or drop it here</source>
        <translation>按 %@ 打开录音，或将其拖放到此处</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Playback</source>
        <translation>播放(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Import Dictation…</source>
        <translation>导入听写(&amp;I)…</translation>
    </message>
    <message>
        <source>Import from &amp;Music Folder…</source>
        <translation>从音乐文件夹打开(&amp;M)…</translation>
    </message>
    <message>
        <source>&amp;Clear Dictation…</source>
        <translation>清空听写(&amp;C)…</translation>
    </message>
    <message>
        <source>&amp;Play/Pause</source>
        <translation>播放/暂停(&amp;P)</translation>
    </message>
    <message>
        <source>Pre&amp;vious Segment</source>
        <translation>上一分段(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Next Segment</source>
        <translation>下一分段(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Repeat Mode</source>
        <translation>重复模式(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;First Segment</source>
        <translation>第一个分段(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Split the Audio Again</source>
        <translation>重新切分音频(&amp;S)</translation>
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
        <translation>快速帮助指南：

1. 打开音频文件：%@
2. 播放/暂停：%@
3. 下一段：%@
4. 上一段：%@
5. 重复模式：%@
6. 第一个分段：%@
7. 重新切分音频：%@
8. 导出听写：%@

如有任何问题，请发送邮件至：support@kelmora.app。</translation>
    </message>
    <message>
        <source>&amp;Attach Reference Text…</source>
        <translation>附加参考文本(&amp;A)…</translation>
    </message>
    <message>
        <source>Remo&amp;ve Reference Text</source>
        <translation>移除参考文本(&amp;V)</translation>
    </message>
    <message>
        <source>Chec&amp;k Segment</source>
        <translation>检查分段(&amp;K)</translation>
    </message>
    <message>
        <source>Show Next &amp;Word</source>
        <translation>显示下一个单词(&amp;W)</translation>
    </message>
    <message>
        <source>Reference</source>
        <translation>参考</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>检查</translation>
    </message>
    <message>
        <source>Attach the lesson&apos;s text (.txt, .srt, .vtt or .lrc) to check your typing</source>
        <translation>附加课程文本（.txt、.srt、.vtt 或 .lrc）以检查你的输入</translation>
    </message>
    <message>
        <source>Check the current segment against the reference text</source>
        <translation>将当前分段与参考文本对照检查</translation>
    </message>
    <message>
        <source>Reference Texts</source>
        <translation>参考文本</translation>
    </message>
    <message>
        <source>Cannot Read Reference Text</source>
        <translation>无法读取参考文本</translation>
    </message>
    <message>
        <source>Cannot Store Reference Text</source>
        <translation>无法存储参考文本</translation>
    </message>
    <message>
        <source>“%@” could not be read.</source>
        <translation>无法读取“%@”。</translation>
    </message>
    <message>
        <source>“%@” is not a .txt, .srt, .vtt or .lrc file.</source>
        <translation>“%@”不是 .txt、.srt、.vtt 或 .lrc 文件。</translation>
    </message>
    <message>
        <source>“%@” is larger than 16 MB.</source>
        <translation>“%@”大于 16 MB。</translation>
    </message>
    <message>
        <source>“%@” is not a text file.</source>
        <translation>“%@”不是文本文件。</translation>
    </message>
    <message>
        <source>“%@” is not UTF-8 text.</source>
        <translation>“%@”不是 UTF-8 文本。</translation>
    </message>
    <message>
        <source>“%@” is empty.</source>
        <translation>“%@”是空的。</translation>
    </message>
    <message>
        <source>“%@” does not start with WEBVTT.</source>
        <translation>“%@”不是以 WEBVTT 开头。</translation>
    </message>
    <message>
        <source>“%@” has no text within the recording.</source>
        <translation>“%@”在录音范围内没有文本。</translation>
    </message>
    <message>
        <source>Press %@ to check this segment.</source>
        <translation>按 %@ 检查此分段。</translation>
    </message>
    <message>
        <source>Next word: %@</source>
        <translation>下一个单词：%@</translation>
    </message>
    <message>
        <source>Every word is typed.</source>
        <translation>所有单词都已输入。</translation>
    </message>
    <message>
        <source>No reference words for this segment.</source>
        <translation>此分段没有参考单词。</translation>
    </message>
    <message>
        <source>No mistakes.</source>
        <translation>没有错误。</translation>
    </message>
    <message>
        <source>1 mistake: %@.</source>
        <translation>1 处错误：%@。</translation>
    </message>
    <message>
        <source>%@ mistakes: %@.</source>
        <translation>%@ 处错误：%@。</translation>
    </message>
    <message>
        <source>&apos;%@&apos; should be &apos;%@&apos;</source>
        <translation>“%@”应为“%@”</translation>
    </message>
    <message>
        <source>missing &apos;%@&apos;</source>
        <translation>缺少“%@”</translation>
    </message>
    <message>
        <source>extra &apos;%@&apos;</source>
        <translation>多余的“%@”</translation>
    </message>
    <message>
        <source>Segment %@</source>
        <translation>分段 %@</translation>
    </message>
    <message>
        <source>lesson %@</source>
        <translation>课程 %@</translation>
    </message>
    <message>
        <source>Lesson %@</source>
        <translation>课程 %@</translation>
    </message>
    <message>
        <source>Checked: no mistakes</source>
        <translation>已检查：没有错误</translation>
    </message>
    <message>
        <source>Checked: typos only</source>
        <translation>已检查：只有拼写错误</translation>
    </message>
    <message>
        <source>Checked: mistakes</source>
        <translation>已检查：有错误</translation>
    </message>
    <message>
        <source>Checking</source>
        <translation>检查</translation>
    </message>
    <message>
        <source>Count punctuation</source>
        <translation>计入标点</translation>
    </message>
    <message>
        <source>Typo weight:</source>
        <translation>拼写错误权重：</translation>
    </message>
    <message>
        <source>Count case</source>
        <translation>区分大小写</translation>
    </message>
    <message>
        <source>Check as I type</source>
        <translation>边输入边检查</translation>
    </message>
    <message>
        <source>Check segment</source>
        <translation>检查分段</translation>
    </message>
    <message>
        <source>Show next word</source>
        <translation>显示下一个单词</translation>
    </message>
    <message>
        <source>Recovered typing from your last session</source>
        <translation>已恢复上次会话中输入的内容</translation>
    </message>
    <message>
        <source>Typing since the last save is not protected: the journal cannot be written</source>
        <translation>自上次保存以来的输入未受保护：无法写入日志</translation>
    </message>
    <message>
        <source>Your typing could not be saved to disk; Kelmora will try again at the next save</source>
        <translation>无法将你输入的内容保存到磁盘；Kelmora 会在下次保存时重试</translation>
    </message>
    <message>
        <source>The last save failed: what you typed since then may not be on disk.</source>
        <translation>上次保存失败：此后输入的内容可能没有写入磁盘。</translation>
    </message>
    <message>
        <source>The transcript is larger than 16 MB and was not read.</source>
        <translation>字幕文件大于 16 MB，未读取。</translation>
    </message>
    <message>
        <source>The transcript is not a regular file and was not read.</source>
        <translation>字幕文件不是普通文件，未读取。</translation>
    </message>
    <message>
        <source>Recover Earlier &amp;Dictation…</source>
        <translation>恢复之前的听写(&amp;D)…</translation>
    </message>
    <message>
        <source>A saved dictation that could not be used was set aside; File → Recover Earlier Dictation… brings it back</source>
        <translation>无法使用的已保存听写已另行保留；文件 → 恢复之前的听写… 可将其找回</translation>
    </message>
    <message>
        <source>Recover Earlier Dictation</source>
        <translation>恢复之前的听写</translation>
    </message>
    <message>
        <source>Versions of this lesson&apos;s dictation that were set aside, newest first:</source>
        <translation>本课听写中另行保留的版本（最新的在前）：</translation>
    </message>
    <message>
        <source>Recover</source>
        <translation>恢复</translation>
    </message>
    <message>
        <source>No earlier dictation of this recording was set aside.</source>
        <translation>这段录音没有另行保留的之前的听写。</translation>
    </message>
    <message>
        <source>A saved dictation that could not be used could not be set aside; it is not saved over</source>
        <translation>无法使用的已保存听写无法另行保留；不会覆盖它</translation>
    </message>
    <message>
        <source>Kelmora found a dictation typed for this recording at %1 (last saved %2). Use it?</source>
        <translation>Kelmora 找到了在 %1 为此录音输入的听写（上次保存于 %2）。要使用吗？</translation>
    </message>
    <message>
        <source>Use It</source>
        <translation>使用</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>以后再说</translation>
    </message>
    <message>
        <source>Spli&amp;t Segment at Play Head</source>
        <translation>在播放位置拆分分段(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Merge with Next Segment</source>
        <translation>与下一分段合并(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>撤销(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>重做(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Undo %@</source>
        <translation>撤销“%@”(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo %@</source>
        <translation>重做“%@”(&amp;R)</translation>
    </message>
    <message>
        <source>Split Segment</source>
        <translation>拆分分段</translation>
    </message>
    <message>
        <source>Merge Segments</source>
        <translation>合并分段</translation>
    </message>
    <message>
        <source>Move Boundary</source>
        <translation>移动边界</translation>
    </message>
    <message>
        <source>Clear Dictation</source>
        <translation>清空听写</translation>
    </message>
    <message>
        <source>Import Dictation</source>
        <translation>导入听写</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>拆分</translation>
    </message>
    <message>
        <source>Split the segment in two at the play head</source>
        <translation>在播放位置将分段一分为二</translation>
    </message>
    <message>
        <source>Nothing was split: each part of a segment must be at least 0.1 seconds long</source>
        <translation>未拆分：分段的每一部分至少需要 0.1 秒</translation>
    </message>
    <message>
        <source>Move Segment Start &amp;Earlier</source>
        <translation>将分段起点提前(&amp;E)</translation>
    </message>
    <message>
        <source>Move Segment Start &amp;Later</source>
        <translation>将分段起点推后(&amp;L)</translation>
    </message>
    <message>
        <source>Split segment</source>
        <translation>拆分分段</translation>
    </message>
    <message>
        <source>Merge with next</source>
        <translation>与下一分段合并</translation>
    </message>
    <message>
        <source>Practice</source>
        <translation>练习</translation>
    </message>
    <message>
        <source>Pause after each repetition:</source>
        <translation>每次重复后暂停:</translation>
    </message>
    <message>
        <source>Play the first repetition slower</source>
        <translation>第一遍放慢播放</translation>
    </message>
    <message>
        <source>Step back when playing resumes:</source>
        <translation>继续播放时后退:</translation>
    </message>
    <message>
        <source>Play only while the play key is held</source>
        <translation>仅在按住播放键时播放</translation>
    </message>
    <message>
        <source>A sentence is hard below:</source>
        <translation>低于此分数即为难句:</translation>
    </message>
    <message>
        <source>s</source>
        <translation>秒</translation>
    </message>
    <message>
        <source>Until I move on</source>
        <translation>直到我继续</translation>
    </message>
    <message>
        <source>Practise &amp;Hard Sentences</source>
        <translation>练习难句(&amp;H)</translation>
    </message>
    <message>
        <source>Practise hard sentences</source>
        <translation>练习难句</translation>
    </message>
    <message>
        <source>Hard sentences: %d left</source>
        <translation>难句：剩余 %d 句</translation>
    </message>
    <message>
        <source>No hard sentences in this lesson</source>
        <translation>本课没有难句</translation>
    </message>
    <message>
        <source>%d due for review</source>
        <translation>%d 句待复习</translation>
    </message>
    <message>
        <source>Checked once</source>
        <translation>已检查 1 次</translation>
    </message>
    <message>
        <source>Checked %d times</source>
        <translation>已检查 %d 次</translation>
    </message>
    <message>
        <source>1 hint</source>
        <translation>提示 1 次</translation>
    </message>
    <message>
        <source>%d hints</source>
        <translation>提示 %d 次</translation>
    </message>
    <message>
        <source>last %@, best %@</source>
        <translation>最近 %@，最佳 %@</translation>
    </message>
    <message>
        <source>%d min %d s</source>
        <translation>%d 分 %d 秒</translation>
    </message>
    <message>
        <source>%d s</source>
        <translation>%d 秒</translation>
    </message>
    <message>
        <source>Your practice record could not be saved: %@</source>
        <translation>无法保存练习记录：%@</translation>
    </message>
    <message>
        <source>Your practice record could not be read and is not saved over: %@</source>
        <translation>无法读取练习记录，不会覆盖它：%@</translation>
    </message>
    <message>
        <source>Cut Segments at &amp;Sentences</source>
        <translation>按句子切分分段(&amp;S)</translation>
    </message>
    <message>
        <source>Cut at Sentences</source>
        <translation>按句子切分</translation>
    </message>
    <message>
        <source>Segments now: %d</source>
        <translation>现在的分段数：%d</translation>
    </message>
    <message>
        <source>Uncertain segment starts: %@</source>
        <translation>不确定的分段起点：%@</translation>
    </message>
    <message>
        <source>&amp;Align Again…</source>
        <translation>重新对齐(&amp;A)…</translation>
    </message>
    <message>
        <source>Align Reference Text</source>
        <translation>对齐参考文本</translation>
    </message>
    <message>
        <source>Kelmora can place each sentence of “%@” on the recording. Which language is the lesson in?</source>
        <translation>Kelmora 可以把“%@”的每个句子放到录音上。这节课是什么语言?</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>语言(&amp;L):</translation>
    </message>
    <message>
        <source>Align</source>
        <translation>对齐</translation>
    </message>
    <message>
        <source>Don’t Align</source>
        <translation>不对齐</translation>
    </message>
    <message>
        <source>Placing the sentences on the recording…</source>
        <translation>正在把句子放到录音上…</translation>
    </message>
    <message>
        <source>Aligned %d sentences, %d uncertain</source>
        <translation>已对齐 %d 个句子,%d 个不确定</translation>
    </message>
    <message>
        <source>The reference text could not be aligned</source>
        <translation>无法对齐参考文本</translation>
    </message>
    <message>
        <source>%@ The reference text stays as it was.</source>
        <translation>%@ 参考文本保持不变。</translation>
    </message>
</context>
</TS>
