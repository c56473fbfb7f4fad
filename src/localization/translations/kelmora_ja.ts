<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Kelmora</source>
        <translation>Kelmora</translation>
    </message>
    <message>
        <source>No audio file opened</source>
        <translation>オーディオファイルが開かれていません</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>環境設定</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Don&apos;t Save</source>
        <translation>保存しない</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>後で</translation>
    </message>
    <message>
        <source>Save Dictation?</source>
        <translation>ディクテーションを保存しますか？</translation>
    </message>
    <message>
        <source>Do you want to save the dictation before closing?</source>
        <translation>閉じる前にディクテーションを保存しますか？</translation>
    </message>
    <message>
        <source>Error Opening File</source>
        <translation>ファイルを開けませんでした</translation>
    </message>
    <message>
        <source>Invalid File Type</source>
        <translation>無効なファイル形式</translation>
    </message>
    <message>
        <source>Please select a supported audio file</source>
        <translation>対応しているオーディオファイルを選択してください</translation>
    </message>
    <message>
        <source>File Access Error</source>
        <translation>ファイルアクセスエラー</translation>
    </message>
    <message>
        <source>File Too Large</source>
        <translation>ファイルが大きすぎます</translation>
    </message>
    <message>
        <source>Please select an audio file smaller than %llu MB</source>
        <translation>%llu MB 未満のオーディオファイルを選択してください</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Failed to process audio file</source>
        <translation>オーディオファイルを処理できませんでした</translation>
    </message>
    <message>
        <source>Please grant access to the folder containing your audio files</source>
        <translation>オーディオファイルがあるフォルダへのアクセスを許可してください</translation>
    </message>
    <message>
        <source>Grant Access</source>
        <translation>アクセスを許可</translation>
    </message>
    <message>
        <source>Save Transcript</source>
        <translation>書き起こしを保存</translation>
    </message>
    <message>
        <source>Save Error</source>
        <translation>保存エラー</translation>
    </message>
    <message>
        <source>Error writing to file</source>
        <translation>ファイルへの書き込み中にエラーが発生しました</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Please open an audio file first</source>
        <translation>先にオーディオファイルを開いてください</translation>
    </message>
    <message>
        <source>Failed to load transcription</source>
        <translation>書き起こしを読み込めませんでした</translation>
    </message>
    <message>
        <source>Invalid File</source>
        <translation>無効なファイル</translation>
    </message>
    <message>
        <source>lyric duration is too long</source>
        <translation>歌詞の長さが長すぎます</translation>
    </message>
    <message>
        <source>Are you sure to clear dictation?</source>
        <translation>ディクテーションを消去してもよろしいですか？</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>サンプル数</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>長さ</translation>
    </message>
    <message>
        <source>Segments</source>
        <translation>セグメント数</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>再生</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>リピート</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>連続</translation>
    </message>
    <message>
        <source>Segment</source>
        <translation>セグメント</translation>
    </message>
    <message>
        <source>Dictation</source>
        <translation>ディクテーション</translation>
    </message>
    <message>
        <source>|Dictation</source>
        <translation>|ディクテーション</translation>
    </message>
    <message>
        <source>English</source>
        <translation>英語</translation>
    </message>
    <message>
        <source>Chinese(Simplified)</source>
        <translation>中国語（簡体字）</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>スペイン語</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>日本語</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>韓国語</translation>
    </message>
    <message>
        <source>German</source>
        <translation>ドイツ語</translation>
    </message>
    <message>
        <source>French</source>
        <translation>フランス語</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation>ロシア語</translation>
    </message>
    <message>
        <source>Thai</source>
        <translation>タイ語</translation>
    </message>
    <message>
        <source>Vietnamese</source>
        <translation>ベトナム語</translation>
    </message>
    <message>
        <source>Input must not exceed 6 digits</source>
        <translation>入力は6桁以内にしてください</translation>
    </message>
    <message>
        <source>Invalid input: %@</source>
        <translation>無効な入力：%@</translation>
    </message>
    <message>
        <source>Settings Reset</source>
        <translation>設定をリセットしました</translation>
    </message>
    <message>
        <source>All settings have been restored to their default values</source>
        <translation>すべての設定がデフォルト値に戻されました</translation>
    </message>
    <message>
        <source>Warnning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Please restart the app to apply the new language.</source>
        <translation>新しい言語を適用するには、アプリを再起動してください。</translation>
    </message>
    <message>
        <source>Restart Now</source>
        <translation>今すぐ再起動</translation>
    </message>
    <message>
        <source>Error checking for updates</source>
        <translation>アップデートの確認中にエラーが発生しました</translation>
    </message>
    <message>
        <source>Error parsing updates JSON</source>
        <translation>アップデート情報（JSON）の解析中にエラーが発生しました</translation>
    </message>
    <message>
        <source>App is already the latest version</source>
        <translation>アプリは最新バージョンです</translation>
    </message>
    <message>
        <source>Update Available</source>
        <translation>アップデートがあります</translation>
    </message>
    <message>
        <source>Version %@ is available.

Release Notes:
%@</source>
        <translation>バージョン %@ が利用可能です。

リリースノート：
%@</translation>
    </message>
    <message>
        <source>No release notes available</source>
        <translation>リリースノートはありません</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>アップデート</translation>
    </message>
    <message>
        <source>Audio Files</source>
        <translation>オーディオファイル</translation>
    </message>
    <message>
        <source>Analysing audio</source>
        <translation>オーディオを解析中</translation>
    </message>
    <message>
        <source>Waveform</source>
        <translation>波形</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>開く(&amp;O)…</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>最近使った項目を開く(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Clear Menu</source>
        <translation>メニューを消去(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Export Dictation…</source>
        <translation>ディクテーションをエクスポート(&amp;E)…</translation>
    </message>
    <message>
        <source>&amp;Quit Kelmora</source>
        <translation>Kelmora を終了(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>表示(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Window Size</source>
        <translation>ウィンドウサイズ(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>環境設定(&amp;P)…</translation>
    </message>
    <message>
        <source>&amp;Check for Updates…</source>
        <translation>アップデートを確認(&amp;C)…</translation>
    </message>
    <message>
        <source>Kelmora &amp;Help</source>
        <translation>Kelmora ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>Play/Pause</source>
        <translation>再生/一時停止</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>エクスポート</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>インポート</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>消去</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>音楽</translation>
    </message>
    <message>
        <source>Open an audio file</source>
        <translation>オーディオファイルを開く</translation>
    </message>
    <message>
        <source>Play or pause the current segment</source>
        <translation>現在のセグメントを再生または一時停止</translation>
    </message>
    <message>
        <source>Repeat each segment, or play on to the next</source>
        <translation>各セグメントをリピート、または次のセグメントへ連続再生</translation>
    </message>
    <message>
        <source>Export the dictation as an LRC file</source>
        <translation>ディクテーションを LRC ファイルとしてエクスポート</translation>
    </message>
    <message>
        <source>Open the preferences</source>
        <translation>環境設定を開く</translation>
    </message>
    <message>
        <source>Import a dictation from an LRC file</source>
        <translation>LRC ファイルからディクテーションをインポート</translation>
    </message>
    <message>
        <source>Clear the dictation</source>
        <translation>ディクテーションを消去</translation>
    </message>
    <message>
        <source>Open a file from your music folder</source>
        <translation>音楽フォルダからファイルを開く</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>ツールバー</translation>
    </message>
    <message>
        <source>Status bar</source>
        <translation>ステータスバー</translation>
    </message>
    <message>
        <source>General</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>外観</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>ショートカット</translation>
    </message>
    <message>
        <source>Shortest segment (seconds)</source>
        <translation>最短セグメント（秒）</translation>
    </message>
    <message>
        <source>Play speed</source>
        <translation>再生速度</translation>
    </message>
    <message>
        <source>Plays of each segment in repeat mode</source>
        <translation>リピートモードでの各セグメントの再生回数</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>A new language shows after a restart.</source>
        <translation>新しい言語は再起動後に反映されます。</translation>
    </message>
    <message>
        <source>Table background</source>
        <translation>表の背景</translation>
    </message>
    <message>
        <source>Text colour</source>
        <translation>文字の色</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>フォント</translation>
    </message>
    <message>
        <source>Show line numbers</source>
        <translation>行番号を表示</translation>
    </message>
    <message>
        <source>Show the waveform</source>
        <translation>波形を表示</translation>
    </message>
    <message>
        <source>Show the status bar</source>
        <translation>ステータスバーを表示</translation>
    </message>
    <message>
        <source>Previous segment</source>
        <translation>前のセグメント</translation>
    </message>
    <message>
        <source>Next segment</source>
        <translation>次のセグメント</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>再生 / 一時停止</translation>
    </message>
    <message>
        <source>Repeat mode</source>
        <translation>リピートモード</translation>
    </message>
    <message>
        <source>First segment</source>
        <translation>最初のセグメント</translation>
    </message>
    <message>
        <source>Split the audio again</source>
        <translation>音声を再分割</translation>
    </message>
    <message>
        <source>Click a field and press the new key. Click elsewhere to finish.</source>
        <translation>フィールドをクリックして新しいキーを押してください。終えるには他の場所をクリックします。</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <translation>デフォルトに戻す</translation>
    </message>
    <message>
        <source>Choose the dictation font</source>
        <translation>ディクテーションのフォントを選択</translation>
    </message>
    <message>
        <source>Transcripts</source>
        <translation>書き起こし</translation>
    </message>
    <message>
        <source>The lesson is still being analysed. Import the dictation once it has opened.</source>
        <translation>レッスンはまだ解析中です。開き終わってからディクテーションをインポートしてください。</translation>
    </message>
    <message>
        <source>Open a recording with %@ or drop it here</source>
        <translation>%@ で録音を開くか、ここにドロップしてください</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Playback</source>
        <translation>再生(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Import Dictation…</source>
        <translation>ディクテーションをインポート(&amp;I)…</translation>
    </message>
    <message>
        <source>Import from &amp;Music Folder…</source>
        <translation>音楽フォルダから開く(&amp;M)…</translation>
    </message>
    <message>
        <source>&amp;Clear Dictation…</source>
        <translation>ディクテーションを消去(&amp;C)…</translation>
    </message>
    <message>
        <source>&amp;Play/Pause</source>
        <translation>再生/一時停止(&amp;P)</translation>
    </message>
    <message>
        <source>Pre&amp;vious Segment</source>
        <translation>前のセグメント(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Next Segment</source>
        <translation>次のセグメント(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Repeat Mode</source>
        <translation>リピートモード(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;First Segment</source>
        <translation>最初のセグメント(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Split the Audio Again</source>
        <translation>音声を再分割(&amp;S)</translation>
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
        <translation>クイックヘルプ：

1. オーディオファイルを開く：%@
2. 再生/一時停止：%@
3. 次のセグメント：%@
4. 前のセグメント：%@
5. リピートモード：%@
6. 最初のセグメント：%@
7. 音声を再分割：%@
8. ディクテーションをエクスポート：%@

ご質問がありましたら、こちらまでメールでお寄せください：support@kelmora.app。</translation>
    </message>
    <message>
        <source>&amp;Attach Reference Text…</source>
        <translation>参照テキストを添付(&amp;A)…</translation>
    </message>
    <message>
        <source>Remo&amp;ve Reference Text</source>
        <translation>参照テキストを削除(&amp;V)</translation>
    </message>
    <message>
        <source>Chec&amp;k Segment</source>
        <translation>セグメントをチェック(&amp;K)</translation>
    </message>
    <message>
        <source>Show Next &amp;Word</source>
        <translation>次の単語を表示(&amp;W)</translation>
    </message>
    <message>
        <source>Reference</source>
        <translation>参照</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>チェック</translation>
    </message>
    <message>
        <source>Attach the lesson&apos;s text (.txt, .srt, .vtt or .lrc) to check your typing</source>
        <translation>レッスンのテキスト (.txt、.srt、.vtt、.lrc) を添付して入力をチェック</translation>
    </message>
    <message>
        <source>Check the current segment against the reference text</source>
        <translation>現在のセグメントを参照テキストと照合</translation>
    </message>
    <message>
        <source>Reference Texts</source>
        <translation>参照テキスト</translation>
    </message>
    <message>
        <source>Cannot Read Reference Text</source>
        <translation>参照テキストを読み込めません</translation>
    </message>
    <message>
        <source>Cannot Store Reference Text</source>
        <translation>参照テキストを保存できません</translation>
    </message>
    <message>
        <source>“%@” could not be read.</source>
        <translation>「%@」を読み込めませんでした。</translation>
    </message>
    <message>
        <source>“%@” is not a .txt, .srt, .vtt or .lrc file.</source>
        <translation>「%@」は .txt、.srt、.vtt、.lrc ファイルではありません。</translation>
    </message>
    <message>
        <source>“%@” is larger than 16 MB.</source>
        <translation>「%@」は 16 MB を超えています。</translation>
    </message>
    <message>
        <source>“%@” is not a text file.</source>
        <translation>「%@」はテキストファイルではありません。</translation>
    </message>
    <message>
        <source>“%@” is not UTF-8 text.</source>
        <translation>「%@」は UTF-8 テキストではありません。</translation>
    </message>
    <message>
        <source>“%@” is empty.</source>
        <translation>「%@」は空です。</translation>
    </message>
    <message>
        <source>“%@” does not start with WEBVTT.</source>
        <translation>「%@」が WEBVTT で始まっていません。</translation>
    </message>
    <message>
        <source>“%@” has no text within the recording.</source>
        <translation>「%@」には録音の範囲内のテキストがありません。</translation>
    </message>
    <message>
        <source>Press %@ to check this segment.</source>
        <translation>%@ を押すとこのセグメントをチェックします。</translation>
    </message>
    <message>
        <source>Next word: %@</source>
        <translation>次の単語：%@</translation>
    </message>
    <message>
        <source>Every word is typed.</source>
        <translation>すべての単語を入力済みです。</translation>
    </message>
    <message>
        <source>No reference words for this segment.</source>
        <translation>このセグメントには参照する単語がありません。</translation>
    </message>
    <message>
        <source>No mistakes.</source>
        <translation>間違いはありません。</translation>
    </message>
    <message>
        <source>1 mistake: %@.</source>
        <translation>間違い 1 件：%@。</translation>
    </message>
    <message>
        <source>%@ mistakes: %@.</source>
        <translation>間違い %@ 件：%@。</translation>
    </message>
    <message>
        <source>&apos;%@&apos; should be &apos;%@&apos;</source>
        <translation>「%@」は正しくは「%@」</translation>
    </message>
    <message>
        <source>missing &apos;%@&apos;</source>
        <translation>「%@」が抜けています</translation>
    </message>
    <message>
        <source>extra &apos;%@&apos;</source>
        <translation>余分な「%@」</translation>
    </message>
    <message>
        <source>Segment %@</source>
        <translation>セグメント %@</translation>
    </message>
    <message>
        <source>lesson %@</source>
        <translation>レッスン %@</translation>
    </message>
    <message>
        <source>Lesson %@</source>
        <translation>レッスン %@</translation>
    </message>
    <message>
        <source>Checked: no mistakes</source>
        <translation>チェック済み：間違いなし</translation>
    </message>
    <message>
        <source>Checked: typos only</source>
        <translation>チェック済み：タイプミスのみ</translation>
    </message>
    <message>
        <source>Checked: mistakes</source>
        <translation>チェック済み：間違いあり</translation>
    </message>
    <message>
        <source>Checking</source>
        <translation>チェック</translation>
    </message>
    <message>
        <source>Count punctuation</source>
        <translation>句読点を数える</translation>
    </message>
    <message>
        <source>Typo weight:</source>
        <translation>タイプミスの重み：</translation>
    </message>
    <message>
        <source>Count case</source>
        <translation>大文字と小文字を区別する</translation>
    </message>
    <message>
        <source>Check as I type</source>
        <translation>入力しながらチェック</translation>
    </message>
    <message>
        <source>Check segment</source>
        <translation>セグメントをチェック</translation>
    </message>
    <message>
        <source>Show next word</source>
        <translation>次の単語を表示</translation>
    </message>
    <message>
        <source>Recovered typing from your last session</source>
        <translation>前回のセッションの入力を復元しました</translation>
    </message>
    <message>
        <source>Typing since the last save is not protected: the journal cannot be written</source>
        <translation>前回の保存以降の入力は保護されていません：ジャーナルに書き込めません</translation>
    </message>
    <message>
        <source>Your typing could not be saved to disk; Kelmora will try again at the next save</source>
        <translation>入力内容をディスクに保存できませんでした。次回の保存時に Kelmora が再試行します</translation>
    </message>
    <message>
        <source>The last save failed: what you typed since then may not be on disk.</source>
        <translation>前回の保存に失敗しました。それ以降に入力した内容はディスクに保存されていない可能性があります。</translation>
    </message>
    <message>
        <source>The transcript is larger than 16 MB and was not read.</source>
        <translation>トランスクリプトが 16 MB を超えているため、読み込みませんでした。</translation>
    </message>
    <message>
        <source>The transcript is not a regular file and was not read.</source>
        <translation>トランスクリプトが通常のファイルではないため、読み込みませんでした。</translation>
    </message>
    <message>
        <source>Recover Earlier &amp;Dictation…</source>
        <translation>以前のディクテーションを復元(&amp;D)…</translation>
    </message>
    <message>
        <source>A saved dictation that could not be used was set aside; File → Recover Earlier Dictation… brings it back</source>
        <translation>使用できなかった保存済みのディクテーションを別に保管しました。ファイル → 以前のディクテーションを復元… で戻せます</translation>
    </message>
    <message>
        <source>Recover Earlier Dictation</source>
        <translation>以前のディクテーションを復元</translation>
    </message>
    <message>
        <source>Versions of this lesson&apos;s dictation that were set aside, newest first:</source>
        <translation>別に保管されたこのレッスンのディクテーション(新しい順):</translation>
    </message>
    <message>
        <source>Recover</source>
        <translation>復元</translation>
    </message>
    <message>
        <source>No earlier dictation of this recording was set aside.</source>
        <translation>この録音について別に保管された以前のディクテーションはありません。</translation>
    </message>
    <message>
        <source>A saved dictation that could not be used could not be set aside; it is not saved over</source>
        <translation>使用できなかった保存済みのディクテーションを別に保管できませんでした。上書きはしません</translation>
    </message>
    <message>
        <source>Kelmora found a dictation typed for this recording at %1 (last saved %2). Use it?</source>
        <translation>Kelmora は、この録音のために %1 で入力されたディクテーションを見つけました（最終保存 %2）。使用しますか？</translation>
    </message>
    <message>
        <source>Use It</source>
        <translation>使用する</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>今はしない</translation>
    </message>
    <message>
        <source>Spli&amp;t Segment at Play Head</source>
        <translation>再生位置でセグメントを分割(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Merge with Next Segment</source>
        <translation>次のセグメントと結合(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>元に戻す(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>やり直す(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Undo %@</source>
        <translation>「%@」を元に戻す(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo %@</source>
        <translation>「%@」をやり直す(&amp;R)</translation>
    </message>
    <message>
        <source>Split Segment</source>
        <translation>セグメントを分割</translation>
    </message>
    <message>
        <source>Merge Segments</source>
        <translation>セグメントを結合</translation>
    </message>
    <message>
        <source>Move Boundary</source>
        <translation>境界を移動</translation>
    </message>
    <message>
        <source>Clear Dictation</source>
        <translation>ディクテーションを消去</translation>
    </message>
    <message>
        <source>Import Dictation</source>
        <translation>ディクテーションをインポート</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>分割</translation>
    </message>
    <message>
        <source>Split the segment in two at the play head</source>
        <translation>再生位置でセグメントを 2 つに分割</translation>
    </message>
    <message>
        <source>Nothing was split: each part of a segment must be at least 0.1 seconds long</source>
        <translation>分割しませんでした：セグメントの各部分は 0.1 秒以上の長さが必要です</translation>
    </message>
    <message>
        <source>Move Segment Start &amp;Earlier</source>
        <translation>セグメントの開始を早める(&amp;E)</translation>
    </message>
    <message>
        <source>Move Segment Start &amp;Later</source>
        <translation>セグメントの開始を遅らせる(&amp;L)</translation>
    </message>
    <message>
        <source>Split segment</source>
        <translation>セグメントを分割</translation>
    </message>
    <message>
        <source>Merge with next</source>
        <translation>次のセグメントと結合</translation>
    </message>
    <message>
        <source>Practice</source>
        <translation>練習</translation>
    </message>
    <message>
        <source>Pause after each repetition:</source>
        <translation>各リピート後の間:</translation>
    </message>
    <message>
        <source>Play the first repetition slower</source>
        <translation>最初のリピートをゆっくり再生</translation>
    </message>
    <message>
        <source>Step back when playing resumes:</source>
        <translation>再開時に戻る秒数:</translation>
    </message>
    <message>
        <source>Play only while the play key is held</source>
        <translation>再生キーを押している間だけ再生</translation>
    </message>
    <message>
        <source>A sentence is hard below:</source>
        <translation>この得点未満の文は難しい文:</translation>
    </message>
    <message>
        <source>s</source>
        <translation>秒</translation>
    </message>
    <message>
        <source>Until I move on</source>
        <translation>次へ進むまで</translation>
    </message>
    <message>
        <source>Practise &amp;Hard Sentences</source>
        <translation>難しい文を練習(&amp;H)</translation>
    </message>
    <message>
        <source>Practise hard sentences</source>
        <translation>難しい文を練習</translation>
    </message>
    <message>
        <source>Hard sentences: %d left</source>
        <translation>難しい文：残り %d</translation>
    </message>
    <message>
        <source>No hard sentences in this lesson</source>
        <translation>このレッスンに難しい文はありません</translation>
    </message>
    <message>
        <source>%d due for review</source>
        <translation>%d 件が復習時期</translation>
    </message>
    <message>
        <source>Checked once</source>
        <translation>1 回チェック済み</translation>
    </message>
    <message>
        <source>Checked %d times</source>
        <translation>%d 回チェック済み</translation>
    </message>
    <message>
        <source>1 hint</source>
        <translation>ヒント 1 回</translation>
    </message>
    <message>
        <source>%d hints</source>
        <translation>ヒント %d 回</translation>
    </message>
    <message>
        <source>last %@, best %@</source>
        <translation>前回 %@、最高 %@</translation>
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
        <translation>練習記録を保存できませんでした：%@</translation>
    </message>
    <message>
        <source>Your practice record could not be read and is not saved over: %@</source>
        <translation>練習記録を読み込めないため、上書きしません：%@</translation>
    </message>
    <message>
        <source>Cut Segments at &amp;Sentences</source>
        <translation>文ごとにセグメントを分割(&amp;S)</translation>
    </message>
    <message>
        <source>Cut at Sentences</source>
        <translation>文ごとに分割</translation>
    </message>
    <message>
        <source>Segments now: %d</source>
        <translation>現在のセグメント数: %d</translation>
    </message>
    <message>
        <source>Uncertain segment starts: %@</source>
        <translation>不確かなセグメントの開始: %@</translation>
    </message>
    <message>
        <source>&amp;Align Again…</source>
        <translation>もう一度整列(&amp;A)…</translation>
    </message>
    <message>
        <source>Align Reference Text</source>
        <translation>参照テキストの整列</translation>
    </message>
    <message>
        <source>Kelmora can place each sentence of “%@” on the recording. Which language is the lesson in?</source>
        <translation>Kelmora は「%@」の各文を録音上に配置できます。レッスンの言語は何ですか?</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>言語(&amp;L):</translation>
    </message>
    <message>
        <source>Align</source>
        <translation>整列</translation>
    </message>
    <message>
        <source>Don’t Align</source>
        <translation>整列しない</translation>
    </message>
    <message>
        <source>Placing the sentences on the recording…</source>
        <translation>文を録音上に配置しています…</translation>
    </message>
    <message>
        <source>Aligned %d sentences, %d uncertain</source>
        <translation>%d 文を整列、うち %d 文は不確か</translation>
    </message>
    <message>
        <source>The reference text could not be aligned</source>
        <translation>参照テキストを整列できませんでした</translation>
    </message>
    <message>
        <source>%@ The reference text stays as it was.</source>
        <translation>%@ 参照テキストは元のままです。</translation>
    </message>
</context>
</TS>
