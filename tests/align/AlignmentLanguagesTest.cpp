// SPDX-License-Identifier: GPL-3.0-or-later
// The languages the aligner offers: each one's voice reads it as that
// language, and a text's script picks one.

#include "align/AlignmentLanguages.h"

#include "align/SpeechSynthesizer.h"

#include <QFileInfo>
#include <QHash>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

// espeak-ng's phonemes of `text` read by `voice`. A word the voice cannot
// read in its own language comes out in another, marked "(en)" and the like.
QString phonemes(const QString& voice, const QString& text)
{
    QProcess espeak;
    espeak.start(QStringLiteral("espeak-ng"), {"-q", "-x", "-v", voice, text});
    EXPECT_TRUE(espeak.waitForFinished(10000));
    return QString::fromUtf8(espeak.readAllStandardOutput()).simplified();
}

// Samples the espeak-ng program writes for `text` with `voice`.
qint64 programSamples(const QString& voice, const QString& text)
{
    QTemporaryDir dir;
    const QString wav = dir.filePath("out.wav");
    EXPECT_EQ(QProcess::execute("espeak-ng", {"-v", voice, "-w", wav, text}), 0);
    return (QFileInfo(wav).size() - 44) / 2; // 16-bit mono after a 44-byte header
}

// Samples the aligner's own synthesis gives.
qint64 alignerSamples(const QString& voice, const QString& text)
{
    qint64 samples = 0;
    QString error;
    EXPECT_TRUE(SpeechSynthesizer::speak(
        {text}, voice,
        [&](const int16_t*, int count) {
            samples += count;
            return true;
        },
        {}, nullptr, &error))
        << error.toStdString();
    return samples;
}

} // namespace

TEST(AlignmentLanguages, EveryOfferedVoiceReadsItsOwnLanguageNumbersIncluded)
{
    // A sentence with a number in every offered language.
    const QHash<QString, QString> samples{
        {"ca", "Els alumnes escolten cada frase i l'escriuen dues vegades, a les 12."},
        {"cmn", "学生们听每一个句子，然后写两遍，12点。"},
        {"yue", "學生聽每一句，然後寫兩次，12點。"},
        {"cs", "Žáci poslouchají každou větu a dvakrát ji napíší, ve 12 hodin."},
        {"da", "Eleverne lytter til hver sætning og skriver den to gange, klokken 12."},
        {"nl", "De leerlingen luisteren naar elke zin en schrijven hem op, om 12 uur."},
        {"en", "The students listen to every sentence and write it down at 12."},
        {"en-us", "The students listen to every sentence and write it down at 12."},
        {"fi", "Oppilaat kuuntelevat jokaisen lauseen ja kirjoittavat sen, kello 12."},
        {"fr", "Les élèves écoutent chaque phrase et l'écrivent deux fois, à 12 heures."},
        {"de", "Die Schüler hören jeden Satz und schreiben ihn auf, um 12 Uhr."},
        {"el", "Οι μαθητές ακούνε κάθε πρόταση και τη γράφουν δύο φορές, στις 12."},
        {"hi", "छात्र हर वाक्य सुनते हैं और उसे दो बार लिखते हैं, 12 बजे।"},
        {"hu", "A diákok minden mondatot meghallgatnak és leírnak, 12 órakor."},
        {"id", "Para siswa mendengarkan setiap kalimat dan menuliskannya, jam 12."},
        {"it", "Gli studenti ascoltano ogni frase e la scrivono due volte, alle 12."},
        {"ko", "학생들은 모든 문장을 듣고 두 번 씁니다, 12시에."},
        {"nb", "Elevene lytter til hver setning og skriver den to ganger, klokka 12."},
        {"pl", "Uczniowie słuchają każdego zdania i zapisują je dwa razy, o 12."},
        {"pt", "Os alunos ouvem cada frase e escrevem-na duas vezes, às 12 horas."},
        {"pt-br", "Os alunos ouvem cada frase e escrevem duas vezes, às 12 horas."},
        {"ro", "Elevii ascultă fiecare propoziție și o scriu de două ori, la ora 12."},
        {"ru", "Ученики слушают каждое предложение и записывают его дважды, в 12 часов."},
        {"es", "Los alumnos escuchan cada frase y la escriben dos veces, a las 12."},
        {"sv", "Eleverna lyssnar på varje mening och skriver den två gånger, klockan 12."},
        {"tr", "Öğrenciler her cümleyi dinler ve iki kez yazar, saat 12'de."},
        {"uk", "Учні слухають кожне речення і записують його двічі, о 12 годині."},
        {"vi", "Học sinh nghe từng câu và viết lại hai lần, lúc 12 giờ."},
    };
    const QList<AlignmentLanguage> offered = AlignmentLanguages::available();
    ASSERT_GE(offered.size(), 5);
    for (const char* code : {"en", "fr", "de", "es", "cmn"})
        EXPECT_TRUE(AlignmentLanguages::isKnown(QString::fromLatin1(code))) << code;
    for (qsizetype i = 0; i < offered.size(); ++i) {
        const AlignmentLanguage& language = offered[i];
        SCOPED_TRACE(language.code.toStdString());
        if (i > 0) {
            EXPECT_LT(offered[i - 1].name, language.name) << "sorted by name";
        }
        EXPECT_FALSE(language.name.isEmpty());
        ASSERT_TRUE(samples.contains(language.code)) << "every offered language was checked";
        const QString read =
            phonemes(AlignmentLanguages::voice(language.code), samples.value(language.code));
        EXPECT_FALSE(read.isEmpty());
        EXPECT_FALSE(read.contains(u'('))
            << "fell back on another language: " << read.toStdString();
    }
    // Mandarin's number is read in Mandarin (shi2 er4), never as English digits.
    const QString mandarin = phonemes(AlignmentLanguages::voice("cmn"), "12点");
    EXPECT_TRUE(mandarin.contains("s.i.35") && mandarin.contains("@r51")) << mandarin.toStdString();
    // The aligner speaks with that voice, not with espeak-ng's other Mandarin
    // one, which reads numbers in English: its sound is as long as the
    // first's and far from the second's.
    const QString numbers = QString::fromUtf8("2023年12点");
    const qint64 spoken = alignerSamples(AlignmentLanguages::voice("cmn"), numbers);
    EXPECT_LT(std::abs(spoken - programSamples("cmn-latn-pinyin", numbers)),
              std::abs(spoken - programSamples("cmn", numbers)) / 4);

    for (const char* unknown : {"", "xx", "ja", "EN", "cmn-latn-pinyin"})
        EXPECT_FALSE(AlignmentLanguages::isKnown(QString::fromLatin1(unknown))) << unknown;
    EXPECT_TRUE(AlignmentLanguages::voice("xx").isEmpty());
}

TEST(AlignmentLanguages, GuessFollowsTheScriptAndTheInterfaceLanguage)
{
    const struct
    {
        const char* text;
        const char* interface;
        const char* expected;
    } cases[] = {
        {"大家早上好，欢迎回来。", "en_US", "cmn"},
        {"大家早上好，欢迎回来。", "fr_FR", "cmn"},
        {"今日は日本語を勉強します。", "ja_JP", "cmn"}, // no Japanese voice reads kanji
        {"Bonjour à tous.", "fr_FR", "fr"},
        {"Bonjour à tous.", "fr-CA.UTF-8", "fr"},
        {"Hello everyone.", "pt_BR", "pt-br"},
        {"Hello everyone.", "pt_AO", "pt"},
        {"Hello everyone.", "en_US", "en-us"},
        {"Hello everyone.", "zh_CN", "en"}, // Latin text, Han interface
        {"Hello everyone.", "xx", "en"},
        {"Hello everyone.", "", "en"},
        {"Привет всем.", "uk_UA", "uk"},
        {"Привет всем.", "de_DE", "ru"},
        {"Γεια σας.", "en_GB", "el"},
        {"안녕하세요.", "en_GB", "ko"},
        {"Mostly Latin words 和一点中文", "de_DE", "de"},
        {"1234 !?", "es_ES", "es"}, // no letters: Latin, then the interface
        {"", "en_GB", "en"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(AlignmentLanguages::guess(QString::fromUtf8(c.text), c.interface), c.expected)
            << c.text << " / " << c.interface;
    }
}
