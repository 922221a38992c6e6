#include "platform/runtime_error.h"
#include "printing.h"

#include <gtest/gtest.h>

#include <utility>

using namespace Qt::StringLiterals;

using namespace platform;

TEST(RuntimeErrors, have_the_classic_numbers_and_texts)
{
    const std::pair<int, QString> table[]{
        {5, u"Invalid procedure call"_s},
        {52, u"Bad file name or number"_s},
        {53, u"File not found"_s},
        {55, u"File already open"_s},
        {57, u"Device I/O error"_s},
        {58, u"File already exists"_s},
        {61, u"Disk full"_s},
        {62, u"Input past end of file"_s},
        {67, u"Too many files"_s},
        {68, u"Device unavailable"_s},
        {70, u"Permission denied"_s},
        {71, u"Disk not ready"_s},
        {75, u"Path/File access error"_s},
        {76, u"Path not found"_s},
        {32755, u"Cancel was selected"_s},
        {1, u"Unknown error"_s},
    };
    for (const auto &[number, text] : table) {
        const RuntimeError error(static_cast<ErrorNumber>(number));
        EXPECT_EQ(error.Number, number);
        EXPECT_EQ(error.Description, text);
        EXPECT_STREQ(error.what(), text.toUtf8().constData());
    }
}

TEST(RuntimeErrors, begin_with_a_small_letter_within_a_sentence)
{
    EXPECT_EQ(withinSentence(u"Disk full"_s), u"disk full"_s);
    EXPECT_EQ(withinSentence(u"Device I/O error"_s), u"device I/O error"_s);
    EXPECT_EQ(withinSentence(QString()), QString());
}
