// MArgParser and MArgDatabase: arguments taken apart as a syntax says.
#include "../sceneFixture.h"

#include <maya/MArgDatabase.h>
#include <maya/MArgList.h>
#include <maya/MSyntax.h>

#include <gmock/gmock.h>

namespace tvxhost::api::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// The arguments of a call: whole numbers, numbers and words.
template <class... Values>
MArgList call(const Values&... values)
{
    MArgList list;
    [[maybe_unused]] const auto add = [&list](const auto& value) {
        if constexpr (std::is_arithmetic_v<std::decay_t<decltype(value)>>)
            list.addArg(value);
        else
            list.addArg(MString(value));
    };
    (add(values), ...);
    return list;
}

class MArgParserTest : public SceneFixture
{
protected:
    MArgParserTest()
    {
        syntax.addFlag("-n", "-name", MSyntax::kString);
        syntax.addFlag("-s", "-size", MSyntax::kDouble, MSyntax::kDouble);
        syntax.addFlag("-c", "-count", MSyntax::kLong);
        syntax.addFlag("-on", "-only");
        syntax.addFlag("-k", "-keep", MSyntax::kBoolean);
        syntax.addFlag("-a", "-add", MSyntax::kString);
        syntax.makeFlagMultiUse("-add");
    }

    Texts errors()
    {
        Texts all;
        for (const engine::Message& message : scene.scriptEditor().history())
            if (message.kind == engine::MessageKind::error)
                all.push_back(message.text);
        return all;
    }

    /// What the script editor says of a call that does not fit.
    Texts refusalOf(const MArgList& arguments)
    {
        MStatus status;
        const MArgParser parser(syntax, arguments, &status);
        EXPECT_EQ(MS::kFailure, status.statusCode());
        EXPECT_EQ(0u, parser.numberOfFlagsUsed());
        return errors();
    }

    Texts objectsOf(const MArgParser& parser)
    {
        MStringArray names;
        EXPECT_TRUE(parser.getObjects(names));
        return texts(names);
    }

    Texts objectsOf(const MArgDatabase& database)
    {
        MSelectionList list;
        EXPECT_TRUE(database.getObjects(list));
        MStringArray names;
        list.getSelectionStrings(names);
        return texts(names);
    }

    MSyntax syntax;
};

TEST_F(MArgParserTest, FlagsAreFoundByEitherName)
{
    MStatus status = MS::kFailure;
    const MArgParser parser(syntax, call("-name", "crowd", "-s", 2.5, 4, "-on"), &status);
    EXPECT_EQ(MS::kSuccess, status);
    EXPECT_TRUE(parser.isFlagSet("-n"));
    EXPECT_TRUE(parser.isFlagSet("name"));
    EXPECT_TRUE(parser.isFlagSet("-only"));
    EXPECT_FALSE(parser.isFlagSet("-c", &status));
    EXPECT_TRUE(status);
    EXPECT_FALSE(parser.isFlagSet("-unknown", &status));
    EXPECT_EQ("(kInvalidParameter): Cannot find item of required type", text(status));
    EXPECT_EQ(3u, parser.numberOfFlagsUsed());
    EXPECT_EQ("crowd", text(parser.flagArgumentString("-n", 0)));
    EXPECT_EQ(2.5, parser.flagArgumentDouble("-size", 0));
    EXPECT_EQ(4.0, parser.flagArgumentDouble("-size", 1));
    EXPECT_EQ(2, parser.flagArgumentInt("-size", 0)) << "towards zero";
    EXPECT_THAT(errors(), IsEmpty());
}

TEST_F(MArgParserTest, AMissingArgumentFailsAndLeavesTheResult)
{
    const MArgParser parser(syntax, call("-s", 1, 2, "-n", "x"));
    double size = 7.0;
    EXPECT_EQ("(kInvalidParameter): No element at given index", text(parser.getFlagArgument("-s", 2, size)));
    EXPECT_EQ("(kInvalidParameter): Cannot find item of required type",
              text(parser.getFlagArgument("-c", 0, size)));
    EXPECT_EQ("(kInvalidParameter): Object is incompatible with this method",
              text(parser.getFlagArgument("-n", 0, size)));
    EXPECT_EQ(7.0, size);
    MStatus status;
    EXPECT_EQ(0, parser.flagArgumentInt("-c", 0, &status));
    EXPECT_FALSE(status);
}

TEST_F(MArgParserTest, WhatDoesNotFitIsShown)
{
    EXPECT_THAT(refusalOf(call("-x", 1)), ElementsAre("Invalid flag '-x'"));
    scene.scriptEditor().clearHistory();
    EXPECT_THAT(refusalOf(call("-count", "many")),
                ElementsAre("Flag '-count' must be passed an integer argument"));
    scene.scriptEditor().clearHistory();
    EXPECT_THAT(refusalOf(call("-s", 1)), ElementsAre("Flag '-size' must be passed a number argument"));
    scene.scriptEditor().clearHistory();
    EXPECT_THAT(refusalOf(call("-s", 1, "-on")),
                ElementsAre("Flag '-size' must be passed a number argument"));
    scene.scriptEditor().clearHistory();
    EXPECT_THAT(refusalOf(call("-on", 3)), ElementsAre("Wrong number of arguments on call to ."));
}

TEST_F(MArgParserTest, ANegativeNumberIsNoFlagAndTextMayBeginWithADash)
{
    const MArgParser parser(syntax, call("-c", -3, "-n", "-count"));
    EXPECT_EQ(-3, parser.flagArgumentInt("-c", 0));
    EXPECT_EQ("-count", text(parser.flagArgumentString("-n", 0)));
    EXPECT_EQ(2u, parser.numberOfFlagsUsed());
}

TEST_F(MArgParserTest, TruthValuesHaveWords)
{
    EXPECT_TRUE(MArgParser(syntax, call("-k", "on")).flagArgumentBool("-k", 0));
    EXPECT_FALSE(MArgParser(syntax, call("-k", "false")).flagArgumentBool("-k", 0));
    EXPECT_TRUE(MArgParser(syntax, call("-k", 1)).flagArgumentBool("-k", 0));
    EXPECT_THAT(refusalOf(call("-k", "perhaps")),
                ElementsAre("Flag '-keep' must be passed a boolean argument"));
}

TEST_F(MArgParserTest, QuantitiesAreInTheUsersUnitsOrTheirOwn)
{
    syntax.addFlag("-d", "-distance", MSyntax::kDistance);
    syntax.addFlag("-r", "-rotation", MSyntax::kAngle);
    syntax.addFlag("-t", "-time", MSyntax::kTime);
    scene.units().linear = engine::LinearUnit::metres;
    const MArgParser plain(syntax, call("-d", 2, "-r", 90, "-t", 48));
    EXPECT_EQ(200.0, plain.flagArgumentMDistance("-d", 0).asCentimeters());
    EXPECT_EQ(90.0, plain.flagArgumentMAngle("-r", 0).asDegrees());
    EXPECT_EQ(2.0, plain.flagArgumentMTime("-t", 0).as(MTime::kSeconds));
    const MArgParser named(syntax, call("-d", "2ft", "-r", "1rad", "-t", "3sec"));
    EXPECT_DOUBLE_EQ(60.96, named.flagArgumentMDistance("-d", 0).asCentimeters());
    EXPECT_EQ(1.0, named.flagArgumentMAngle("-r", 0).asRadians());
    EXPECT_EQ(72.0, named.flagArgumentMTime("-t", 0).as(MTime::kFilm));
    EXPECT_THAT(refusalOf(call("-d", "2parsec")),
                ElementsAre("Flag '-distance' must be passed a distance argument"));
}

TEST_F(MArgParserTest, AFlagMayBeMadeForSeveralUses)
{
    const MArgParser parser(syntax, call("-a", "one", "-c", 1, "-add", "two", "-count", 2));
    EXPECT_EQ(2u, parser.numberOfFlagUses("-a"));
    EXPECT_EQ(1u, parser.numberOfFlagUses("-c")) << "the last use counts";
    EXPECT_EQ(2, parser.flagArgumentInt("-c", 0));
    EXPECT_EQ("one", text(parser.flagArgumentString("-a", 0)));
    unsigned int position = 0;
    EXPECT_TRUE(parser.getFlagArgumentPosition("-a", 1, position));
    EXPECT_EQ(4u, position);
    MArgList arguments;
    EXPECT_TRUE(parser.getFlagArgumentList("-a", 1, arguments));
    EXPECT_EQ(1u, arguments.length());
    EXPECT_EQ("two", text(arguments.asString(0)));
    EXPECT_EQ(MS::kInvalidParameter, parser.getFlagArgumentList("-a", 2, arguments).statusCode());
    EXPECT_EQ(MS::kInvalidParameter, parser.getFlagArgumentPosition("-n", 0, position).statusCode());
}

TEST_F(MArgParserTest, InQueryModeFlagsHaveNoArguments)
{
    EXPECT_THAT(refusalOf(call("-q", "-n")), ElementsAre("Invalid flag '-q'")) << "no query mode";
    syntax.enableQuery();
    syntax.enableEdit();
    const MArgParser query(syntax, call("-n", "-s", "-query"));
    EXPECT_TRUE(query.isQuery());
    EXPECT_FALSE(query.isEdit());
    EXPECT_EQ(2u, query.numberOfFlagsUsed());
    const MArgParser edit(syntax, call("-e", "-n", "other"));
    EXPECT_TRUE(edit.isEdit());
    EXPECT_EQ("other", text(edit.flagArgumentString("-n", 0)));
    scene.scriptEditor().clearHistory();
    EXPECT_THAT(refusalOf(call("-q", "-e")),
                ElementsAre("Flags '-query' and '-edit' cannot be used together"));
}

TEST_F(MArgParserTest, AFlagMayBeQueriedWithArguments)
{
    syntax.enableQuery();
    syntax.makeFlagQueryWithFullArgs("-n", false);
    syntax.makeFlagQueryWithFullArgs("-c", true);
    EXPECT_EQ("x", text(MArgParser(syntax, call("-q", "-n", "x")).flagArgumentString("-n", 0)));
    EXPECT_EQ(4, MArgParser(syntax, call("-q", "-c", 4)).flagArgumentInt("-c", 0));
    EXPECT_TRUE(MArgParser(syntax, call("-q", "-c")).isFlagSet("-c"));
    EXPECT_THAT(refusalOf(call("-q", "-n")), ElementsAre("Flag '-name' must be passed a string argument"));
}

TEST_F(MArgParserTest, ArgumentsStandBehindOrBetweenTheFlags)
{
    syntax.addArg(MSyntax::kLong);
    syntax.addArg(MSyntax::kString);
    const MArgParser parser(syntax, call(3, "-on", "grid"));
    EXPECT_EQ(3, parser.commandArgumentInt(0));
    EXPECT_EQ("grid", text(parser.commandArgumentString(1)));
    MStatus status;
    EXPECT_EQ(0.0, parser.commandArgumentDouble(2, &status));
    EXPECT_EQ("(kInvalidParameter): No element at given index", text(status));
    EXPECT_THAT(refusalOf(call("grid", 3)),
                ElementsAre("Invalid argument 1 of : expected an integer argument"));
}

TEST_F(MArgParserTest, ObjectsAreNamesOrASelection)
{
    make("transform", "a");
    make("transform", "b");
    EXPECT_EQ(MS::kFailure, [&] {
        MStringArray none;
        return MArgParser(syntax, call()).getObjects(none);
    }());
    syntax.setObjectType(MSyntax::kStringObjects, 1, 2);
    EXPECT_THAT(objectsOf(MArgParser(syntax, call("-on", "b", "nowhere"))), ElementsAre("b", "nowhere"));
    EXPECT_THAT(refusalOf(call()), ElementsAre(" needs at least 1 object(s), 0 given"));
    scene.scriptEditor().clearHistory();
    EXPECT_THAT(refusalOf(call("a", "b", "c")), ElementsAre(" takes at most 2 object(s), 3 given"));
    syntax.setObjectType(MSyntax::kSelectionList);
    EXPECT_THAT(objectsOf(MArgDatabase(syntax, call("b", "a"))), ElementsAre("b", "a"));
    scene.scriptEditor().clearHistory();
    EXPECT_THAT(refusalOf(call("a", "nowhere")), ElementsAre("No object matches name: nowhere"));
}

TEST_F(MArgParserTest, TheSelectionStandsInForMissingObjects)
{
    make("transform", "a");
    make("transform", "b");
    engine::SelectionList selection;
    selection.add(scene.findItem("b").value);
    scene.setSelection(selection);
    syntax.setObjectType(MSyntax::kSelectionList, 1);
    syntax.useSelectionAsDefault(true);
    EXPECT_THAT(objectsOf(MArgDatabase(syntax, call())), ElementsAre("b"));
    EXPECT_THAT(objectsOf(MArgDatabase(syntax, call("a"))), ElementsAre("a"));
    EXPECT_THAT(objectsOf(static_cast<const MArgParser&>(MArgDatabase(syntax, call()))), ElementsAre("b"));
}

TEST_F(MArgParserTest, ArgumentsMayNameObjects)
{
    make("transform", "a1");
    make("transform", "a2");
    syntax.addFlag("-w", "-with", MSyntax::kSelectionItem);
    syntax.addArg(MSyntax::kSelectionItem);
    const MArgDatabase database(syntax, call("-w", "a*", "a2"));
    MSelectionList list;
    EXPECT_TRUE(database.getFlagArgument("-w", 0, list));
    EXPECT_EQ(2u, list.length());
    MSelectionList one;
    EXPECT_TRUE(database.getCommandArgument(0, one));
    EXPECT_EQ(1u, one.length());
    EXPECT_EQ(MS::kInvalidParameter, database.getFlagArgument("-n", 0, list).statusCode());
    EXPECT_EQ(MS::kInvalidParameter,
              MArgDatabase(syntax, call("nowhere")).getCommandArgument(0, list).statusCode());
    EXPECT_EQ(MS::kFailure, database.getObjects(list).statusCode());
}

TEST_F(MArgParserTest, CopiesShareWhatWasParsed)
{
    MArgParser copy;
    EXPECT_FALSE(copy.isFlagSet("-n"));
    {
        const MArgParser parser(syntax, call("-n", "crowd"));
        copy = parser;
    }
    EXPECT_EQ("crowd", text(copy.flagArgumentString("-n", 0)));
}

} // namespace
} // namespace tvxhost::api::test
