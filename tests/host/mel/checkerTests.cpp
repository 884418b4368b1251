// What the checker reports about a script.
#include "mel/checker.h"

#include <gtest/gtest.h>

namespace tvxhost::mel {
namespace {

const char* const kScript = "global int $gCount;\n"
                            "global proc string[] names(string $a[], float $b)\n"
                            "{\n"
                            "\tif ($b > 1) print `size $a`;\n"
                            "\tfor ($n in $a) { setAttr ($n + \".tx\") (abs($b)); }\n"
                            "\treturn $a;\n"
                            "}\n"
                            "\n"
                            "proc helper() { while (0) break; }\n"
                            "$gCount = size({1});\n";

TEST(Checker, CountsWhatAScriptHolds)
{
    const CheckReport report = checkScript(kScript, "a.mel");
    EXPECT_TRUE(report.ok());
    EXPECT_EQ(report.statements, (std::map<std::string, int>{{"block", 1},
                                                             {"break", 1},
                                                             {"command", 2},
                                                             {"declaration", 1},
                                                             {"expression", 1},
                                                             {"for-in", 1},
                                                             {"if", 1},
                                                             {"proc", 2},
                                                             {"return", 1},
                                                             {"while", 1}}));
    EXPECT_EQ(report.commands,
              (std::map<std::string, int>{{"abs", 1}, {"print", 1}, {"setAttr", 1}, {"size", 2}}));
}

TEST(Checker, ListsProceduresAsText)
{
    EXPECT_EQ(
        toText(checkScript(kScript, "a.mel")),
        "a.mel: OK\n"
        "Statements: block 1 break 1 command 2 declaration 1 expression 1 for-in 1 if 1 proc 2 return 1 "
        "while 1\n"
        "Calls: abs 1 print 1 setAttr 1 size 2\n"
        "Procedures: 2\n"
        "  line 2: global proc string[] names(string $a[], float $b)\n"
        "  line 9: proc helper()\n");
}

TEST(Checker, ReportsTheErrorWithItsLine)
{
    const CheckReport report = checkScript("print 1;\nprint (2;\n", "b.mel");
    EXPECT_FALSE(report.ok());
    EXPECT_EQ(toText(report), "b.mel: line 2, column 9: Syntax error\nprint (2;\n        ^\n");
    EXPECT_EQ(
        toJson(report),
        R"({"commands":{},"error":{"column":9,"line":2,"message":"Syntax error","text":"print (2;\n        ^"},)"
        R"("file":"b.mel","ok":false,"procedures":[],"statements":{}})");
}

TEST(Checker, ReportsAsJson)
{
    EXPECT_EQ(toJson(checkScript("proc f(int $a) {}", "c.mel")),
              R"({"commands":{},"file":"c.mel","ok":true,"procedures":[{"global":false,"line":1,"name":"f",)"
              R"("parameters":["int $a"],"result":""}],"statements":{"proc":1}})");
}

TEST(Checker, TextOfOtherEncodingsStaysJson)
{
    EXPECT_EQ(toJson(checkScript("print (\"\xe4\";", "d.mel")).find('\xe4'), std::string::npos);
}

} // namespace
} // namespace tvxhost::mel
