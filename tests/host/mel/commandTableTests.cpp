// Commands as data: their arguments taken apart, their help.
#include "mel/commandTable.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tvxhost::mel {
namespace {

using testing::ElementsAre;

CommandSpec exampleSpec()
{
    CommandSpec spec;
    spec.name = "example";
    spec.summary = "Shows every kind of flag";
    spec.queryable = true;
    spec.editable = true;
    spec.positional = {ArgumentType::name, 0, 2};
    spec.flags = {
        {"n", "name", {ArgumentType::string}, kAllModes, "Its name"},
        {"t", "type", {ArgumentType::string}, kCreate | kMultiUse, ""},
        {"tr", "translation", {ArgumentType::number, ArgumentType::number}, kCreateEdit, ""},
        {"vis", "visible", {ArgumentType::boolean}, kAllModes, ""},
        {"c", "count", {ArgumentType::integer}, kCreate, ""},
        {"ex", "exists", {ArgumentType::string}, kQueryWithArguments, ""},
        {"w", "words", {ArgumentType::string}, kCreate | kVariable, ""},
        {"at", "atTime", {ArgumentType::time}, kCreate, ""},
    };
    return spec;
}

/// Takes "-flag word …" apart as tokens: a dash and a letter make a flag.
ParsedCommand parsed(const std::vector<std::string>& words, const CommandSpec& spec)
{
    ArgumentList list;
    for (const std::string& word : words) {
        list.addToken(ArgumentKind::string, word);
    }
    return parseArguments(spec, list);
}

class ParseArguments : public testing::Test
{
protected:
    ParsedCommand parse(const std::vector<std::string>& words) const { return parsed(words, m_spec); }

    std::string errorOf(const std::vector<std::string>& words) const
    {
        try {
            parse(words);
        } catch (const ValueError& error) {
            return error.what();
        }
        return "(none)";
    }

    const CommandSpec m_spec = exampleSpec();
};

TEST_F(ParseArguments, AreFoundByLongName)
{
    const ParsedCommand command = parse({"-n", "a", "node", "-translation", "1.5", "-2", "-vis", "off"});
    EXPECT_EQ(command.mode, CommandMode::create);
    EXPECT_EQ(command.string("name"), "a");
    EXPECT_EQ(command.use("translation")->arguments[1].number(), -2.0);
    EXPECT_FALSE(command.boolean("visible", true));
    EXPECT_THAT(command.names(), ElementsAre("node"));
    EXPECT_FALSE(command.has("count"));
    EXPECT_EQ(command.integer("count", 7), 7);
}

TEST_F(ParseArguments, MultiUseFlagsKeepEachUse)
{
    const ParsedCommand command = parse({"-t", "mesh", "-type", "camera", "-n", "a", "-n", "b"});
    ASSERT_EQ(command.uses("type").size(), 2u);
    EXPECT_EQ(command.uses("type")[1]->arguments[0].string(), "camera");
    EXPECT_EQ(command.uses("name").size(), 1u);
    EXPECT_EQ(command.string("name"), "b");
}

TEST_F(ParseArguments, NumbersConvert)
{
    EXPECT_EQ(parse({"-c", "3.9"}).integer("count"), 3);
    EXPECT_EQ(parse({"-c", "on"}).integer("count"), 1);
    EXPECT_TRUE(parse({"-vis", "1"}).boolean("visible"));
    EXPECT_EQ(parse({"-at", "2sec"}).string("atTime"), "2sec");
}

TEST_F(ParseArguments, VariableFlagsTakeAllUpToTheNextFlag)
{
    const ParsedCommand command = parse({"-w", "a", "b", "c", "-n", "x"});
    EXPECT_EQ(command.use("words")->arguments.size(), 3u);
}

TEST_F(ParseArguments, QueriesTakeNoFlagArguments)
{
    const ParsedCommand command = parse({"-q", "-n", "node"});
    EXPECT_TRUE(command.queries());
    EXPECT_TRUE(command.use("name")->arguments.empty());
    EXPECT_THAT(command.names(), ElementsAre("node"));
}

TEST_F(ParseArguments, TheModeMayStandAnywhere)
{
    EXPECT_THAT(parse({"-n", "node", "-query"}).names(), ElementsAre("node"));
    EXPECT_TRUE(parse({"-n", "a", "-e", "node"}).edits());
    EXPECT_EQ(parse({"-n", "-q"}).string("name"), "-q");
}

TEST_F(ParseArguments, SomeFlagsTakeArgumentsInQueries)
{
    EXPECT_EQ(parse({"-q", "-ex", "panel"}).string("exists"), "panel");
}

TEST_F(ParseArguments, MistakesAreNamed)
{
    EXPECT_EQ(errorOf({"-x"}), "Invalid flag '-x'");
    EXPECT_EQ(errorOf({"-nam", "a"}), "Invalid flag '-nam'");
    EXPECT_EQ(errorOf({"-n"}), "Flag '-name' must be passed a string argument");
    EXPECT_EQ(errorOf({"-tr", "1"}), "Flag '-translation' must be passed a number argument");
    EXPECT_EQ(errorOf({"-c", "-n", "a"}), "Flag '-count' must be passed an integer argument");
    EXPECT_EQ(errorOf({"-vis", "maybe"}), "Flag '-visible' must be passed a boolean argument");
    EXPECT_EQ(errorOf({"a", "b", "c"}), "Wrong number of arguments on call to example.");
    EXPECT_EQ(errorOf({"-q", "-t"}), "Flag '-type' cannot be used in query mode");
    EXPECT_EQ(errorOf({"-q", "-e"}), "Flags '-query' and '-edit' cannot be used together");
}

TEST(Functions, ConvertAndCountTheirArguments)
{
    CommandSpec spec;
    spec.name = "example";
    spec.parameters = {{Parameter::Kind::string}, {Parameter::Kind::integer, true}};
    std::vector<Value> arguments{5, "7"};
    convertArguments(spec, arguments);
    EXPECT_EQ(arguments[0].string(), "5");
    EXPECT_EQ(arguments[1].integer(), 7);
    arguments = {"a"};
    EXPECT_NO_THROW(convertArguments(spec, arguments));
    arguments.clear();
    EXPECT_THROW(convertArguments(spec, arguments), ValueError);
    arguments = {"a", 1, 2};
    EXPECT_THROW(convertArguments(spec, arguments), ValueError);
}

TEST(CommandTable, KeepsNamesUniqueAndSorted)
{
    CommandTable table;
    CommandSpec second;
    second.name = "another";
    EXPECT_TRUE(table.add(exampleSpec()));
    EXPECT_FALSE(table.add(exampleSpec()));
    EXPECT_TRUE(table.add(second));
    EXPECT_THAT(table.names(), ElementsAre("another", "example"));
    EXPECT_NE(table.find("example"), nullptr);
    EXPECT_TRUE(table.remove("example"));
    EXPECT_FALSE(table.remove("example"));
    EXPECT_EQ(table.find("example"), nullptr);
}

TEST(CommandHelp, IsMadeFromTheDeclaration)
{
    EXPECT_EQ(commandHelp(exampleSpec()), "Synopsis: example [flags] [Name] [Name]\n"
                                          "  Shows every kind of flag\n"
                                          "Flags:\n"
                                          "    -e -edit\n"
                                          "    -q -query\n"
                                          "    -n -name                  String\n"
                                          "        Its name\n"
                                          "    -t -type                  String (multi-use)\n"
                                          "   -tr -translation           Float Float\n"
                                          "  -vis -visible               on|off\n"
                                          "    -c -count                 Int\n"
                                          "   -ex -exists                String\n"
                                          "    -w -words                 String...\n"
                                          "   -at -atTime                Time\n");
}

} // namespace
} // namespace tvxhost::mel
