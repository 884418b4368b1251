// Reading headers: the public functions of their classes.
#include "api/listing/headerReader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using tvxhost::api::DeclaredFunction;
using tvxhost::api::functionsIn;

namespace {

constexpr const char* kHeader = R"(// Text with class OPENMAYA_EXPORT MNone { in it.
#pragma once
#define MACRO(x) \
    class x;
class MForward;
class OPENMAYA_EXPORT MThing : public MBase
{
public:
    enum Kind
    {
        kOne = 1, ///< of (two)
    };
    typedef void (*Function)(void* data);
    MThing();
    explicit MThing(const MString& name, MStatus* ReturnStatus = nullptr);
    virtual ~MThing();
    bool isGood(int index, MStatus* ReturnStatus = nullptr) const { return index > 0; }
    static MStatus doIt(void (*func)(bool* retCode, void* data),
                        Kind kind = kOne);
    const MString name() const;
    MThing& operator=(const MThing& other);
    bool operator()(int a, int b) const;
    virtual void copy(int from = 0) = 0;
    virtual void write(int to = 0);
    MThing(const MThing&) = delete;

protected:
    MStatus hidden();

private:
    MStatus secret;
};
)";

/// "name/parameters" and letters: r(esult), p(arameter), i(nline).
std::vector<std::string> described(const std::vector<DeclaredFunction>& functions)
{
    std::vector<std::string> all;
    for (const DeclaredFunction& function : functions)
        all.push_back(function.name + "/" + std::to_string(function.parameters) +
                      (function.returnsStatus ? "r" : "") + (function.takesStatus ? "p" : "") +
                      (function.isInline ? "i" : ""));
    return all;
}

} // namespace

TEST(HeaderReader, FindsThePublicFunctions)
{
    EXPECT_THAT(described(functionsIn(kHeader)),
                ElementsAre("MThing::MThing/0", "MThing::MThing/2p", "MThing::~MThing/0",
                            "MThing::isGood/2pi", "MThing::doIt/2r", "MThing::name/0", "MThing::operator=/1",
                            "MThing::operator()/2", "MThing::copy/1i", "MThing::write/1"));
}

TEST(HeaderReader, FindsNothingWhereThereIsNoClass)
{
    EXPECT_TRUE(functionsIn("").empty());
    EXPECT_TRUE(functionsIn("// nothing\nclass MForward;\ntypedef int MInt;\n").empty());
}
