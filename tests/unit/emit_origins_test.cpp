#include "emit/code_writer.h"

#include <gtest/gtest.h>

using pozhil::CodeWriter;

namespace {

const int OUTER = 0;
const int INNER = 0;
const int OTHER = 0;

const void* originOf(const CodeWriter& writer, std::size_t line) {
    return writer.origins().ofLine(writer.text(), line);
}

TEST(Origins, TellTheNodeThatALineIsWrittenFor) {
    CodeWriter writer;
    writer << "runtime\n";
    {
        const CodeWriter::For outer(writer, &OUTER);
        writer << "if (a) {\n";
        {
            const CodeWriter::For inner(writer, &INNER);
            writer << "    b();\n";
        }
        writer << "}\n";
    }
    writer << "end\n";
    EXPECT_EQ(originOf(writer, 1), nullptr);
    EXPECT_EQ(originOf(writer, 2), &OUTER);
    EXPECT_EQ(originOf(writer, 3), &INNER);
    EXPECT_EQ(originOf(writer, 4), &OUTER);
    EXPECT_EQ(originOf(writer, 5), nullptr);
    for (const std::size_t beyond : {0, 6, 7, 1000}) {
        EXPECT_EQ(originOf(writer, beyond), nullptr) << beyond;
    }
}

TEST(Origins, PreferWhatBeginsInTheLine) {
    CodeWriter writer;
    {
        const CodeWriter::For outer(writer, &OUTER);
        writer << "{\n    callback = ";
        {
            const CodeWriter::For inner(writer, &INNER);
            writer << "f()";
        }
        writer << " + ";
        {
            const CodeWriter::For other(writer, &OTHER);
            writer << "g()";
        }
        writer << ";\n}\n";
    }
    EXPECT_EQ(originOf(writer, 1), &OUTER);
    EXPECT_EQ(originOf(writer, 2), &INNER);
    EXPECT_EQ(originOf(writer, 3), &OUTER);
}

TEST(Origins, OfALineThatBeginsTwoNodesAreTheInnerOne) {
    CodeWriter writer;
    {
        const CodeWriter::For outer(writer, &OUTER);
        const CodeWriter::For inner(writer, &INNER);
        writer << "a();\n";
    }
    {
        const CodeWriter::For other(writer, &OTHER);
        writer << "b();\n";
    }
    EXPECT_EQ(originOf(writer, 1), &INNER);
    EXPECT_EQ(originOf(writer, 2), &OTHER);
}

} // namespace
