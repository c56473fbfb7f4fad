<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="en">
<context>
    <name>Localizable</name>
    <message>
        <source>Kelmora</source>
        <translation>Kelmora</translation>
    </message>
    <message>
        <source>No audio file opened</source>
        <translation>열린 오디오 파일이 없습니다</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>환경설정</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>도움말</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>저장</translation>
    </message>
    <message>
        <source>Don&apos;t Save</source>
        <translation>저장 안 함</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>나중에</translation>
    </message>
    <message>
        <source>Save Dictation?</source>
        <translation>받아쓰기를 저장하시겠습니까?</translation>
    </message>
    <message>
        <source>Do you want to save the dictation before closing?</source>
        <translation>닫기 전에 받아쓰기를 저장하시겠습니까?</translation>
    </message>
    <message>
        <source>Error Opening File</source>
        <translation>파일을 여는 중 오류 발생</translation>
    </message>
    <message>
        <source>Invalid File Type</source>
        <translation>잘못된 파일 형식</translation>
    </message>
    <message>
        <source>Please select a supported audio file</source>
        <translation>지원되는 오디오 파일을 선택하세요</translation>
    </message>
    <message>
        <source>File Access Error</source>
        <translation>파일 접근 오류</translation>
    </message>
    <message>
        <source>File Too Large</source>
        <translation>파일이 너무 큽니다</translation>
    </message>
    <message>
        <source>Please select an audio file smaller than %llu MB</source>
        <translation>%llu MB보다 작은 오디오 파일을 선택하세요</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>오류</translation>
    </message>
    <message>
        <source>Failed to process audio file</source>
        <translation>오디오 파일을 처리하지 못했습니다</translation>
    </message>
    <message>
        <source>Please grant access to the folder containing your audio files</source>
        <translation>오디오 파일이 들어 있는 폴더에 대한 접근을 허용해 주세요</translation>
    </message>
    <message>
        <source>Grant Access</source>
        <translation>접근 허용</translation>
    </message>
    <message>
        <source>Save Transcript</source>
        <translation>녹취록 저장</translation>
    </message>
    <message>
        <source>Save Error</source>
        <translation>저장 오류</translation>
    </message>
    <message>
        <source>Error writing to file</source>
        <translation>파일에 쓰는 중 오류가 발생했습니다</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>경고</translation>
    </message>
    <message>
        <source>Please open an audio file first</source>
        <translation>먼저 오디오 파일을 여세요</translation>
    </message>
    <message>
        <source>Failed to load transcription</source>
        <translation>녹취록을 불러오지 못했습니다</translation>
    </message>
    <message>
        <source>Invalid File</source>
        <translation>잘못된 파일</translation>
    </message>
    <message>
        <source>lyric duration is too long</source>
        <translation>가사 길이가 너무 깁니다</translation>
    </message>
    <message>
        <source>Are you sure to clear dictation?</source>
        <translation>받아쓰기를 모두 지우시겠습니까?</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>샘플 수</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>길이</translation>
    </message>
    <message>
        <source>Segments</source>
        <translation>구간 수</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>재생</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>일시정지</translation>
    </message>
    <message>
        <source>Repeat</source>
        <translation>반복</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>연속</translation>
    </message>
    <message>
        <source>Segment</source>
        <translation>구간</translation>
    </message>
    <message>
        <source>Dictation</source>
        <translation>받아쓰기</translation>
    </message>
    <message>
        <source>|Dictation</source>
        <translation>|받아쓰기</translation>
    </message>
    <message>
        <source>English</source>
        <translation>영어</translation>
    </message>
    <message>
        <source>Chinese(Simplified)</source>
        <translation>중국어(간체)</translation>
    </message>
    <message>
        <source>Spanish</source>
        <translation>스페인어</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>일본어</translation>
    </message>
    <message>
        <source>Korean</source>
        <translation>한국어</translation>
    </message>
    <message>
        <source>German</source>
        <translation>독일어</translation>
    </message>
    <message>
        <source>French</source>
        <translation>프랑스어</translation>
    </message>
    <message>
        <source>Russian</source>
        <translation>러시아어</translation>
    </message>
    <message>
        <source>Thai</source>
        <translation>태국어</translation>
    </message>
    <message>
        <source>Vietnamese</source>
        <translation>베트남어</translation>
    </message>
    <message>
        <source>Input must not exceed 6 digits</source>
        <translation>입력은 6자리를 넘을 수 없습니다</translation>
    </message>
    <message>
        <source>Invalid input: %@</source>
        <translation>잘못된 입력: %@</translation>
    </message>
    <message>
        <source>Settings Reset</source>
        <translation>설정 초기화됨</translation>
    </message>
    <message>
        <source>All settings have been restored to their default values</source>
        <translation>모든 설정이 기본값으로 복원되었습니다</translation>
    </message>
    <message>
        <source>Warnning</source>
        <translation>경고</translation>
    </message>
    <message>
        <source>Please restart the app to apply the new language.</source>
        <translation>새 언어를 적용하려면 앱을 다시 시작하세요.</translation>
    </message>
    <message>
        <source>Restart Now</source>
        <translation>지금 다시 시작</translation>
    </message>
    <message>
        <source>Error checking for updates</source>
        <translation>업데이트 확인 중 오류 발생</translation>
    </message>
    <message>
        <source>Error parsing updates JSON</source>
        <translation>업데이트 JSON 분석 중 오류 발생</translation>
    </message>
    <message>
        <source>App is already the latest version</source>
        <translation>앱이 이미 최신 버전입니다</translation>
    </message>
    <message>
        <source>Update Available</source>
        <translation>업데이트 가능</translation>
    </message>
    <message>
        <source>Version %@ is available.

Release Notes:
%@</source>
        <translation>버전 %@을(를) 사용할 수 있습니다.

릴리스 노트:
%@</translation>
    </message>
    <message>
        <source>No release notes available</source>
        <translation>릴리스 노트가 없습니다</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>업데이트</translation>
    </message>
    <message>
        <source>Audio Files</source>
        <translation>오디오 파일</translation>
    </message>
    <message>
        <source>Analysing audio</source>
        <translation>오디오 분석 중</translation>
    </message>
    <message>
        <source>Waveform</source>
        <translation>파형</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>파일(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>열기(&amp;O)…</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>최근 항목 열기(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Clear Menu</source>
        <translation>메뉴 지우기(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Export Dictation…</source>
        <translation>받아쓰기 내보내기(&amp;E)…</translation>
    </message>
    <message>
        <source>&amp;Quit Kelmora</source>
        <translation>Kelmora 종료(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>보기(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Window Size</source>
        <translation>창 크기(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Preferences…</source>
        <translation>환경설정(&amp;P)…</translation>
    </message>
    <message>
        <source>&amp;Check for Updates…</source>
        <translation>업데이트 확인(&amp;C)…</translation>
    </message>
    <message>
        <source>Kelmora &amp;Help</source>
        <translation>Kelmora 도움말(&amp;H)</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>열기</translation>
    </message>
    <message>
        <source>Play/Pause</source>
        <translation>재생/일시정지</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>내보내기</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>가져오기</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>지우기</translation>
    </message>
    <message>
        <source>Music</source>
        <translation>음악</translation>
    </message>
    <message>
        <source>Open an audio file</source>
        <translation>오디오 파일 열기</translation>
    </message>
    <message>
        <source>Play or pause the current segment</source>
        <translation>현재 구간 재생 또는 일시정지</translation>
    </message>
    <message>
        <source>Repeat each segment, or play on to the next</source>
        <translation>각 구간을 반복하거나 다음 구간으로 계속 재생</translation>
    </message>
    <message>
        <source>Export the dictation as an LRC file</source>
        <translation>받아쓰기를 LRC 파일로 내보내기</translation>
    </message>
    <message>
        <source>Open the preferences</source>
        <translation>환경설정 열기</translation>
    </message>
    <message>
        <source>Import a dictation from an LRC file</source>
        <translation>LRC 파일에서 받아쓰기 가져오기</translation>
    </message>
    <message>
        <source>Clear the dictation</source>
        <translation>받아쓰기 지우기</translation>
    </message>
    <message>
        <source>Open a file from your music folder</source>
        <translation>음악 폴더에서 파일 열기</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>도구 막대</translation>
    </message>
    <message>
        <source>Status bar</source>
        <translation>상태 표시줄</translation>
    </message>
    <message>
        <source>General</source>
        <translation>일반</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>모양</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>단축키</translation>
    </message>
    <message>
        <source>Shortest segment (seconds)</source>
        <translation>가장 짧은 구간(초)</translation>
    </message>
    <message>
        <source>Play speed</source>
        <translation>재생 속도</translation>
    </message>
    <message>
        <source>Plays of each segment in repeat mode</source>
        <translation>반복 모드에서 구간별 재생 횟수</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>언어</translation>
    </message>
    <message>
        <source>A new language shows after a restart.</source>
        <translation>새 언어는 다시 시작한 후에 표시됩니다.</translation>
    </message>
    <message>
        <source>Table background</source>
        <translation>표 배경</translation>
    </message>
    <message>
        <source>Text colour</source>
        <translation>글자 색</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>글꼴</translation>
    </message>
    <message>
        <source>Show line numbers</source>
        <translation>줄 번호 표시</translation>
    </message>
    <message>
        <source>Show the waveform</source>
        <translation>파형 표시</translation>
    </message>
    <message>
        <source>Show the status bar</source>
        <translation>상태 표시줄 표시</translation>
    </message>
    <message>
        <source>Previous segment</source>
        <translation>이전 구간</translation>
    </message>
    <message>
        <source>Next segment</source>
        <translation>다음 구간</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>재생 또는 일시 정지</translation>
    </message>
    <message>
        <source>Repeat mode</source>
        <translation>반복 모드</translation>
    </message>
    <message>
        <source>First segment</source>
        <translation>첫 구간</translation>
    </message>
    <message>
        <source>Split the audio again</source>
        <translation>오디오 다시 나누기</translation>
    </message>
    <message>
        <source>Click a field and press the new key. Click elsewhere to finish.</source>
        <translation>입력란을 클릭하고 새 키를 누르세요. 끝내려면 다른 곳을 클릭하세요.</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <translation>기본값으로 재설정</translation>
    </message>
    <message>
        <source>Choose the dictation font</source>
        <translation>받아쓰기 글꼴 선택</translation>
    </message>
    <message>
        <source>Transcripts</source>
        <translation>녹취록</translation>
    </message>
    <message>
        <source>The lesson is still being analysed. Import the dictation once it has opened.</source>
        <translation>레슨을 아직 분석하고 있습니다. 열린 후에 받아쓰기를 가져오세요.</translation>
    </message>
    <message>
        <source>Open a recording with %@ or drop it here</source>
        <translation>%@ 키로 녹음을 열거나 여기에 끌어다 놓으세요</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>편집(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Playback</source>
        <translation>재생(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>도움말(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Import Dictation…</source>
        <translation>받아쓰기 가져오기(&amp;I)…</translation>
    </message>
    <message>
        <source>Import from &amp;Music Folder…</source>
        <translation>음악 폴더에서 열기(&amp;M)…</translation>
    </message>
    <message>
        <source>&amp;Clear Dictation…</source>
        <translation>받아쓰기 지우기(&amp;C)…</translation>
    </message>
    <message>
        <source>&amp;Play/Pause</source>
        <translation>재생/일시정지(&amp;P)</translation>
    </message>
    <message>
        <source>Pre&amp;vious Segment</source>
        <translation>이전 구간(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Next Segment</source>
        <translation>다음 구간(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Repeat Mode</source>
        <translation>반복 모드(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;First Segment</source>
        <translation>첫 구간(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Split the Audio Again</source>
        <translation>오디오 다시 나누기(&amp;S)</translation>
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
        <translation>빠른 도움말:

1. 오디오 파일 열기: %@
2. 재생/일시정지: %@
3. 다음 구간: %@
4. 이전 구간: %@
5. 반복 모드: %@
6. 첫 구간: %@
7. 오디오 다시 나누기: %@
8. 받아쓰기 내보내기: %@

궁금한 점이 있으면 이메일을 보내 주세요: support@kelmora.app.</translation>
    </message>
    <message>
        <source>&amp;Attach Reference Text…</source>
        <translation>참조 텍스트 첨부(&amp;A)…</translation>
    </message>
    <message>
        <source>Remo&amp;ve Reference Text</source>
        <translation>참조 텍스트 제거(&amp;V)</translation>
    </message>
    <message>
        <source>Chec&amp;k Segment</source>
        <translation>구간 검사(&amp;K)</translation>
    </message>
    <message>
        <source>Show Next &amp;Word</source>
        <translation>다음 단어 보기(&amp;W)</translation>
    </message>
    <message>
        <source>Reference</source>
        <translation>참조</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>검사</translation>
    </message>
    <message>
        <source>Attach the lesson&apos;s text (.txt, .srt, .vtt or .lrc) to check your typing</source>
        <translation>레슨 텍스트(.txt, .srt, .vtt, .lrc)를 첨부해 입력한 내용 검사</translation>
    </message>
    <message>
        <source>Check the current segment against the reference text</source>
        <translation>현재 구간을 참조 텍스트와 비교해 검사</translation>
    </message>
    <message>
        <source>Reference Texts</source>
        <translation>참조 텍스트</translation>
    </message>
    <message>
        <source>Cannot Read Reference Text</source>
        <translation>참조 텍스트를 읽을 수 없음</translation>
    </message>
    <message>
        <source>Cannot Store Reference Text</source>
        <translation>참조 텍스트를 저장할 수 없음</translation>
    </message>
    <message>
        <source>“%@” could not be read.</source>
        <translation>“%@”을(를) 읽을 수 없습니다.</translation>
    </message>
    <message>
        <source>“%@” is not a .txt, .srt, .vtt or .lrc file.</source>
        <translation>“%@”은(는) .txt, .srt, .vtt, .lrc 파일이 아닙니다.</translation>
    </message>
    <message>
        <source>“%@” is larger than 16 MB.</source>
        <translation>“%@”이(가) 16MB보다 큽니다.</translation>
    </message>
    <message>
        <source>“%@” is not a text file.</source>
        <translation>“%@”은(는) 텍스트 파일이 아닙니다.</translation>
    </message>
    <message>
        <source>“%@” is not UTF-8 text.</source>
        <translation>“%@”은(는) UTF-8 텍스트가 아닙니다.</translation>
    </message>
    <message>
        <source>“%@” is empty.</source>
        <translation>“%@”이(가) 비어 있습니다.</translation>
    </message>
    <message>
        <source>“%@” does not start with WEBVTT.</source>
        <translation>“%@”이(가) WEBVTT로 시작하지 않습니다.</translation>
    </message>
    <message>
        <source>“%@” has no text within the recording.</source>
        <translation>“%@”에 녹음 범위 안의 텍스트가 없습니다.</translation>
    </message>
    <message>
        <source>Press %@ to check this segment.</source>
        <translation>%@ 키를 눌러 이 구간을 검사하세요.</translation>
    </message>
    <message>
        <source>Next word: %@</source>
        <translation>다음 단어: %@</translation>
    </message>
    <message>
        <source>Every word is typed.</source>
        <translation>모든 단어를 입력했습니다.</translation>
    </message>
    <message>
        <source>No reference words for this segment.</source>
        <translation>이 구간에는 참조 단어가 없습니다.</translation>
    </message>
    <message>
        <source>No mistakes.</source>
        <translation>틀린 곳이 없습니다.</translation>
    </message>
    <message>
        <source>1 mistake: %@.</source>
        <translation>틀린 곳 1개: %@.</translation>
    </message>
    <message>
        <source>%@ mistakes: %@.</source>
        <translation>틀린 곳 %@개: %@.</translation>
    </message>
    <message>
        <source>&apos;%@&apos; should be &apos;%@&apos;</source>
        <translation>&apos;%@&apos;이(가) 아니라 &apos;%@&apos;</translation>
    </message>
    <message>
        <source>missing &apos;%@&apos;</source>
        <translation>&apos;%@&apos; 빠짐</translation>
    </message>
    <message>
        <source>extra &apos;%@&apos;</source>
        <translation>불필요한 &apos;%@&apos;</translation>
    </message>
    <message>
        <source>Segment %@</source>
        <translation>구간 %@</translation>
    </message>
    <message>
        <source>lesson %@</source>
        <translation>레슨 %@</translation>
    </message>
    <message>
        <source>Lesson %@</source>
        <translation>레슨 %@</translation>
    </message>
    <message>
        <source>Checked: no mistakes</source>
        <translation>검사 완료: 틀린 곳 없음</translation>
    </message>
    <message>
        <source>Checked: typos only</source>
        <translation>검사 완료: 오타만 있음</translation>
    </message>
    <message>
        <source>Checked: mistakes</source>
        <translation>검사 완료: 틀린 곳 있음</translation>
    </message>
    <message>
        <source>Checking</source>
        <translation>검사</translation>
    </message>
    <message>
        <source>Count punctuation</source>
        <translation>문장 부호 포함</translation>
    </message>
    <message>
        <source>Typo weight:</source>
        <translation>오타 가중치:</translation>
    </message>
    <message>
        <source>Count case</source>
        <translation>대소문자 구분</translation>
    </message>
    <message>
        <source>Check as I type</source>
        <translation>입력하는 동안 검사</translation>
    </message>
    <message>
        <source>Check segment</source>
        <translation>구간 검사</translation>
    </message>
    <message>
        <source>Show next word</source>
        <translation>다음 단어 보기</translation>
    </message>
    <message>
        <source>Recovered typing from your last session</source>
        <translation>지난 세션의 입력을 복구했습니다</translation>
    </message>
    <message>
        <source>Typing since the last save is not protected: the journal cannot be written</source>
        <translation>마지막 저장 이후의 입력이 보호되지 않습니다: 저널을 쓸 수 없습니다</translation>
    </message>
    <message>
        <source>Your typing could not be saved to disk; Kelmora will try again at the next save</source>
        <translation>입력한 내용을 디스크에 저장하지 못했습니다. Kelmora가 다음 저장 때 다시 시도합니다</translation>
    </message>
    <message>
        <source>The last save failed: what you typed since then may not be on disk.</source>
        <translation>마지막 저장에 실패했습니다. 그 이후에 입력한 내용은 디스크에 없을 수 있습니다.</translation>
    </message>
    <message>
        <source>The transcript is larger than 16 MB and was not read.</source>
        <translation>대본이 16MB보다 커서 읽지 않았습니다.</translation>
    </message>
    <message>
        <source>The transcript is not a regular file and was not read.</source>
        <translation>대본이 일반 파일이 아니어서 읽지 않았습니다.</translation>
    </message>
    <message>
        <source>Recover Earlier &amp;Dictation…</source>
        <translation>이전 받아쓰기 복구(&amp;D)…</translation>
    </message>
    <message>
        <source>A saved dictation that could not be used was set aside; File → Recover Earlier Dictation… brings it back</source>
        <translation>사용할 수 없는 저장된 받아쓰기를 따로 보관했습니다. 파일 → 이전 받아쓰기 복구…로 되돌릴 수 있습니다</translation>
    </message>
    <message>
        <source>Recover Earlier Dictation</source>
        <translation>이전 받아쓰기 복구</translation>
    </message>
    <message>
        <source>Versions of this lesson&apos;s dictation that were set aside, newest first:</source>
        <translation>따로 보관된 이 레슨의 받아쓰기 버전(최신순):</translation>
    </message>
    <message>
        <source>Recover</source>
        <translation>복구</translation>
    </message>
    <message>
        <source>No earlier dictation of this recording was set aside.</source>
        <translation>이 녹음에 대해 따로 보관된 이전 받아쓰기가 없습니다.</translation>
    </message>
    <message>
        <source>A saved dictation that could not be used could not be set aside; it is not saved over</source>
        <translation>사용할 수 없는 저장된 받아쓰기를 따로 보관하지 못했습니다. 덮어쓰지 않습니다</translation>
    </message>
    <message>
        <source>Kelmora found a dictation typed for this recording at %1 (last saved %2). Use it?</source>
        <translation>Kelmora가 이 녹음에 대해 %1에서 입력한 받아쓰기를 찾았습니다(마지막 저장: %2). 사용하시겠습니까?</translation>
    </message>
    <message>
        <source>Use It</source>
        <translation>사용</translation>
    </message>
    <message>
        <source>Not Now</source>
        <translation>나중에</translation>
    </message>
    <message>
        <source>Spli&amp;t Segment at Play Head</source>
        <translation>재생 위치에서 구간 나누기(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Merge with Next Segment</source>
        <translation>다음 구간과 합치기(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>실행 취소(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>다시 실행(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Undo %@</source>
        <translation>%@ 실행 취소(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo %@</source>
        <translation>%@ 다시 실행(&amp;R)</translation>
    </message>
    <message>
        <source>Split Segment</source>
        <translation>구간 나누기</translation>
    </message>
    <message>
        <source>Merge Segments</source>
        <translation>구간 합치기</translation>
    </message>
    <message>
        <source>Move Boundary</source>
        <translation>경계 이동</translation>
    </message>
    <message>
        <source>Clear Dictation</source>
        <translation>받아쓰기 지우기</translation>
    </message>
    <message>
        <source>Import Dictation</source>
        <translation>받아쓰기 가져오기</translation>
    </message>
    <message>
        <source>Split</source>
        <translation>나누기</translation>
    </message>
    <message>
        <source>Split the segment in two at the play head</source>
        <translation>재생 위치에서 구간을 둘로 나누기</translation>
    </message>
    <message>
        <source>Nothing was split: each part of a segment must be at least 0.1 seconds long</source>
        <translation>나누지 않았습니다: 구간의 각 부분은 0.1초 이상이어야 합니다</translation>
    </message>
    <message>
        <source>Move Segment Start &amp;Earlier</source>
        <translation>구간 시작을 앞당기기(&amp;E)</translation>
    </message>
    <message>
        <source>Move Segment Start &amp;Later</source>
        <translation>구간 시작을 늦추기(&amp;L)</translation>
    </message>
    <message>
        <source>Split segment</source>
        <translation>구간 나누기</translation>
    </message>
    <message>
        <source>Merge with next</source>
        <translation>다음 구간과 합치기</translation>
    </message>
    <message>
        <source>Practice</source>
        <translation>연습</translation>
    </message>
    <message>
        <source>Pause after each repetition:</source>
        <translation>반복할 때마다 쉬는 시간:</translation>
    </message>
    <message>
        <source>Play the first repetition slower</source>
        <translation>첫 반복은 느리게 재생</translation>
    </message>
    <message>
        <source>Step back when playing resumes:</source>
        <translation>다시 재생할 때 되감기:</translation>
    </message>
    <message>
        <source>Play only while the play key is held</source>
        <translation>재생 키를 누르는 동안만 재생</translation>
    </message>
    <message>
        <source>A sentence is hard below:</source>
        <translation>이 점수 미만이면 어려운 문장:</translation>
    </message>
    <message>
        <source>s</source>
        <translation>초</translation>
    </message>
    <message>
        <source>Until I move on</source>
        <translation>다음으로 넘어갈 때까지</translation>
    </message>
    <message>
        <source>Practise &amp;Hard Sentences</source>
        <translation>어려운 문장 연습(&amp;H)</translation>
    </message>
    <message>
        <source>Practise hard sentences</source>
        <translation>어려운 문장 연습</translation>
    </message>
    <message>
        <source>Hard sentences: %d left</source>
        <translation>어려운 문장: %d개 남음</translation>
    </message>
    <message>
        <source>No hard sentences in this lesson</source>
        <translation>이 레슨에는 어려운 문장이 없습니다</translation>
    </message>
    <message>
        <source>%d due for review</source>
        <translation>복습할 문장 %d개</translation>
    </message>
    <message>
        <source>Checked once</source>
        <translation>1번 확인함</translation>
    </message>
    <message>
        <source>Checked %d times</source>
        <translation>%d번 확인함</translation>
    </message>
    <message>
        <source>1 hint</source>
        <translation>힌트 1번</translation>
    </message>
    <message>
        <source>%d hints</source>
        <translation>힌트 %d번</translation>
    </message>
    <message>
        <source>last %@, best %@</source>
        <translation>최근 %@, 최고 %@</translation>
    </message>
    <message>
        <source>%d min %d s</source>
        <translation>%d분 %d초</translation>
    </message>
    <message>
        <source>%d s</source>
        <translation>%d초</translation>
    </message>
    <message>
        <source>Your practice record could not be saved: %@</source>
        <translation>연습 기록을 저장할 수 없습니다: %@</translation>
    </message>
    <message>
        <source>Your practice record could not be read and is not saved over: %@</source>
        <translation>연습 기록을 읽을 수 없어 덮어쓰지 않습니다: %@</translation>
    </message>
    <message>
        <source>Cut Segments at &amp;Sentences</source>
        <translation>문장마다 구간 나누기(&amp;S)</translation>
    </message>
    <message>
        <source>Cut at Sentences</source>
        <translation>문장마다 나누기</translation>
    </message>
    <message>
        <source>Segments now: %d</source>
        <translation>현재 구간 수: %d</translation>
    </message>
    <message>
        <source>Uncertain segment starts: %@</source>
        <translation>불확실한 구간 시작: %@</translation>
    </message>
    <message>
        <source>&amp;Align Again…</source>
        <translation>다시 정렬(&amp;A)…</translation>
    </message>
    <message>
        <source>Align Reference Text</source>
        <translation>참조 텍스트 정렬</translation>
    </message>
    <message>
        <source>Kelmora can place each sentence of “%@” on the recording. Which language is the lesson in?</source>
        <translation>Kelmora는 “%@”의 각 문장을 녹음 위에 배치할 수 있습니다. 레슨의 언어는 무엇입니까?</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>언어(&amp;L):</translation>
    </message>
    <message>
        <source>Align</source>
        <translation>정렬</translation>
    </message>
    <message>
        <source>Don’t Align</source>
        <translation>정렬 안 함</translation>
    </message>
    <message>
        <source>Placing the sentences on the recording…</source>
        <translation>문장을 녹음 위에 배치하는 중…</translation>
    </message>
    <message>
        <source>Aligned %d sentences, %d uncertain</source>
        <translation>%d개 문장 정렬됨, %d개 불확실</translation>
    </message>
    <message>
        <source>The reference text could not be aligned</source>
        <translation>참조 텍스트를 정렬할 수 없습니다</translation>
    </message>
    <message>
        <source>%@ The reference text stays as it was.</source>
        <translation>%@ 참조 텍스트는 그대로 유지됩니다.</translation>
    </message>
</context>
</TS>
