// Every function of the interface that can tell a failure can be made to fail, or the data says why it
// cannot.
#include "librarySymbols.h"

#include "api/listing/interfaceFunctions.h"
#include "api/support/faults.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <map>
#include <memory>
#include <set>
#include <utility>

using namespace tvxhost::api;
using tvxhost::api::test::LibraryFunction;

namespace {

constexpr auto kCode = MStatus::kLicenseFailure; // which the host gives for no reason of its own

/// Room for what a pointer or reference among the arguments may point to, all zero.
using Room = std::array<char, 4096>;
/// More than any function of the interface has, with the object and the room for the result.
constexpr std::size_t kArguments = 24;
using Rooms = std::array<Room, kArguments>;

template <std::size_t>
using Argument = void*;

template <std::size_t... places>
void callWith(const void* address, Rooms& rooms, std::index_sequence<places...>)
{
    using AnyFunction = void (*)(Argument<places>...);
    reinterpret_cast<AnyFunction>(reinterpret_cast<std::uintptr_t>(address))(&rooms[places]...);
}

bool isStatus(const Room& room, MStatus::MStatusCode code)
{
    // The code, the internal code, and whether it is a success.
    return static_cast<unsigned char>(room[0]) == code && room[2] == 0;
}

enum Answer : int
{
    kFails = 0,
    kIsNotTold = 1,
    kTellsNothing = 2,
    kCrashes = 3,
};

/// Calls a function that was told to fail, whatever its arguments are: it does not get to look at them.
/// Results of class type, objects and arguments are pointers to the calling convention, so one list serves
/// all functions.
Answer answerOf(const LibraryFunction& function)
{
    const auto rooms = std::make_unique<Rooms>();
    faults::record(true);
    faults::failCall(function.name, 0, kCode);
    callWith(function.address, *rooms, std::make_index_sequence<kArguments>());
    const auto isIn = [&rooms](MStatus::MStatusCode code) {
        return std::any_of(rooms->begin(), rooms->end(),
                           [code](const Room& room) { return isStatus(room, code); });
    };
    // What the host does not do fails at every call.
    if (isIn(MStatus::kNotImplemented))
        return kFails;
    const auto calls = faults::calls();
    if (std::find(calls.begin(), calls.end(), function.name) == calls.end())
        return kIsNotTold;
    return isIn(kCode) ? kFails : kTellsNothing;
}

/// Answers one function after the other, a byte each.
[[noreturn]] void answerAll(const std::vector<LibraryFunction>& functions, std::size_t first, int pipe)
{
    const rlimit noCore{0, 0};
    setrlimit(RLIMIT_CORE, &noCore);
    (void)!freopen("/dev/null", "w", stderr);
    try {
        for (std::size_t i = first; i < functions.size(); ++i) {
            alarm(10);
            const char answer = static_cast<char>(answerOf(functions[i]));
            faults::clear();
            if (write(pipe, &answer, 1) != 1)
                break;
        }
    } catch (...) {
        // As if it had crashed.
    }
    _exit(0);
}

/// The answers of functions from one on, as far as a process gets that may crash on the way.
std::vector<Answer> answersInChild(const std::vector<LibraryFunction>& functions, std::size_t first)
{
    std::array<int, 2> ends{};
    EXPECT_EQ(0, pipe(ends.data()));
    const pid_t child = fork();
    if (child == 0)
        answerAll(functions, first, ends[1]);
    close(ends[1]);
    std::vector<Answer> answers;
    for (char answer = 0; read(ends[0], &answer, 1) == 1;)
        answers.push_back(static_cast<Answer>(answer));
    close(ends[0]);
    waitpid(child, nullptr, 0);
    return answers;
}

std::vector<Answer> answersOf(const std::vector<LibraryFunction>& functions)
{
    std::vector<Answer> all;
    while (all.size() < functions.size()) {
        const std::vector<Answer> some = answersInChild(functions, all.size());
        all.insert(all.end(), some.begin(), some.end());
        if (all.size() < functions.size())
            all.push_back(kCrashes);
    }
    return all;
}

std::string asLines(const std::vector<std::string>& texts)
{
    std::string lines;
    for (const std::string& text : texts)
        lines += text + "\n";
    return lines;
}

std::string sentenceOf(const LibraryFunction& function, Answer answer)
{
    static const std::map<Answer, const char*> kSentences = {
        {kIsNotTold, "does not ask whether it shall fail"},
        {kTellsNothing, "does not tell that it was made to fail"},
        {kCrashes, "does something before it asks whether it shall fail"}};
    return function.signature + " " + kSentences.at(answer);
}

/// Whether all overloads with that many parameters give a status.
bool canTell(const LibraryFunction& function)
{
    if (function.takesStatus)
        return true;
    bool isKnown = false;
    static const auto all = declaredFunctions();
    for (const DeclaredFunction& declared : all) {
        if (declared.name != function.name || declared.parameters != function.parameters)
            continue;
        if (!declared.returnsStatus)
            return false;
        isKnown = true;
    }
    return isKnown;
}

std::set<std::string> namesThatDoNotFail()
{
    std::set<std::string> names;
    for (const ReasonNotToFail& row : reasonsNotToFail())
        names.insert(row.function);
    return names;
}

/// Of the functions that are declared public, since protected ones are not called by those who use a class.
std::set<std::string> declaredNames()
{
    std::set<std::string> names;
    for (const DeclaredFunction& function : declaredFunctions())
        names.insert(function.name);
    return names;
}

} // namespace

TEST(InterfaceFaults, EveryFunctionThatGivesAStatusCanBeMadeToFail)
{
    const auto excused = namesThatDoNotFail();
    const auto declared = declaredNames();
    std::vector<LibraryFunction> tried;
    for (LibraryFunction& function : test::libraryFunctions())
        if (declared.count(function.name) && !excused.count(function.name) && canTell(function))
            tried.push_back(std::move(function));
    const std::vector<Answer> answers = answersOf(tried);
    std::vector<std::string> failures;
    for (std::size_t i = 0; i < tried.size(); ++i)
        if (answers[i] != kFails)
            failures.push_back(sentenceOf(tried[i], answers[i]));
    std::sort(failures.begin(), failures.end());
    failures.erase(std::unique(failures.begin(), failures.end()), failures.end());
    EXPECT_TRUE(failures.empty()) << asLines(failures);
    EXPECT_GT(tried.size(), 1000u);
}

TEST(InterfaceFaults, TheLibrariesHaveWhatTheHeadersDeclare)
{
    std::set<std::string> present;
    for (const LibraryFunction& function : test::libraryFunctions())
        present.insert(function.name);
    std::vector<std::string> missing;
    for (const DeclaredFunction& function : declaredFunctions())
        if (!function.isInline && !present.count(function.name) &&
            function.name.find("operator ") == std::string::npos)
            missing.push_back(function.name);
    EXPECT_TRUE(missing.empty()) << asLines(missing);
}

TEST(InterfaceFaults, ReasonsAreForFunctionsThatCouldTellAFailure)
{
    std::set<std::string> telling;
    for (const DeclaredFunction& function : declaredFunctions())
        if (function.returnsStatus || function.takesStatus)
            telling.insert(function.name);
    for (const ReasonNotToFail& row : reasonsNotToFail()) {
        EXPECT_TRUE(telling.count(row.function)) << row.function;
        EXPECT_FALSE(row.reason.empty()) << row.function;
    }
}

TEST(InterfaceFaults, TheListNamesEachFunctionOnce)
{
    const auto functions = interfaceFunctions();
    EXPECT_TRUE(std::is_sorted(functions.begin(), functions.end(),
                               [](const auto& a, const auto& b) { return a.name < b.name; }));
    const auto find = [&functions](const std::string& name) {
        const auto found = std::find_if(functions.begin(), functions.end(),
                                        [&name](const auto& function) { return function.name == name; });
        return found == functions.end() ? "missing" : found->whyNot.value_or("fails");
    };
    EXPECT_EQ("fails", find("MDagPath::getAPathTo"));
    EXPECT_EQ("gives no status", find("MDagPath::className"));
    EXPECT_EQ("missing", find("MDagPath::noSuchFunction"));
}
