// A node that holds an attribute of each kind, as a plug-in's node with a data block.
#pragma once

#include "../../host/api/nodeFixture.h"
#include "../log/LogRecorder.h"
#include "core/utils/tvxMayaUtils.h"
#include "memberWarning.h"

#include <maya/MDataBlock.h>
#include <maya/MPlug.h>

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace tarvox::crowd::test {

namespace faults = tvxhost::api::faults;

/// A step of a member that may fail: the Maya call, what is reported before the error string, and the whole
/// report that it makes when an earlier step failed (empty: the step does not mind), another one perhaps when
/// that was the step right before.
struct Step
{
    std::string call;
    std::string prefix;
    std::string afterEarlier{};
    std::string afterPrevious = afterEarlier;
};

/// Attributes of the node: boolValue, shortValue, intValue, floatValue, doubleValue, stringValue, point
/// (three doubles), matrices (array), and intArray, doubleArray, stringArray, vectorArray.
class HolderFixture : public tvxhost::api::test::NodeFixture
{
protected:
    HolderFixture();

    MObject attribute(const std::string& name) const;
    MPlug plug(const std::string& name) const { return MPlug(holder, attribute(name)); }
    MDataBlock block() const;

    /// An attribute that the holder does not have, and an object that is no node.
    static MObject strangeAttribute();

    /// Makes each step fail in turn and expects its report, and those of the later steps, of `member`;
    /// nothing with the filter below warnings, and nothing when all goes well.
    template <class Call>
    void expectReports(const std::string& member, const std::vector<Step>& steps, Call call)
    {
        call();
        EXPECT_THAT(recorder.take(), testing::IsEmpty()) << member;
        for (std::size_t failing = 0; failing < steps.size(); ++failing) {
            SCOPED_TRACE(member + ": " + steps[failing].call);
            const MStatus status(MStatus::kNotFound);
            faults::failCall(steps[failing].call, 1, status);
            call();
            faults::clear();
            std::vector<std::string> expected;
            for (std::size_t i = failing; i < steps.size(); ++i) {
                const std::string text = i == failing       ? steps[i].prefix + status.errorString().asChar()
                                         : i == failing + 1 ? steps[i].afterPrevious
                                                            : steps[i].afterEarlier;
                if (!text.empty())
                    expected.push_back(report(member, text));
            }
            EXPECT_EQ(recorder.take(), expected);

            coreLog().setSeverityFilter(core::kError);
            faults::failCall(steps[failing].call, 1, status);
            call();
            faults::clear();
            coreLog().setSeverityFilter(core::kWarning);
            EXPECT_THAT(recorder.take(), testing::IsEmpty());
        }
    }

    /// A warning of the attribute accessors.
    static std::string report(const std::string& member, const std::string& text)
    {
        return memberWarning("tvxMayaUtils.cpp", member, text);
    }

    // What Maya says to a step that got nothing from the one before.
    static std::string errorOfUnattachedSet();
    static std::string errorOfNullPlug();
    static std::string errorOfNullObject();

    LogRecorder recorder;
    MObject holder;
};

} // namespace tarvox::crowd::test
