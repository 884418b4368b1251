// Declaring a node's attributes: one line each.
#pragma once

#include "core/log/tvxReport.h"

#include <tvxCore/Exception.h>

#include <maya/MColor.h>
#include <maya/MFnAttribute.h>
#include <maya/MObject.h>
#include <maya/MPxNode.h>
#include <maya/MStatus.h>

#include <initializer_list>
#include <optional>
#include <string>

/// Makes an initializer give up when one of its steps failed: reports the failure, with the line and file
/// where this stands, and returns MS::kFailure.
#define TVX_REQUIRE(step)                                                                                    \
    do {                                                                                                     \
        if (!::tarvox::crowd::succeeded((step), __FILE__, __LINE__))                                         \
            return MStatus(MStatus::kFailure);                                                               \
    } while (false)

/// Declares that `input` affects `output`; a failure is noted on standard error and nothing more.
#define TVX_CHECK_AFFECTS(input, output) TVX_CHECK_STATUS(MPxNode::attributeAffects((input), (output)))

namespace tarvox::crowd {

/// The flags of an attribute. All are set explicitly; an attribute that is not storable is left out of saved
/// scenes.
struct AttributeFlags
{
    bool keyable;
    bool readable;
    bool writable;
    bool hidden;
    bool array;
    bool indexMatters;
    bool storable;
};

/// A result of the node: read only, not saved.
inline constexpr AttributeFlags kOutput{false, true, false, false, false, true, false};
/// A setting that can be animated.
inline constexpr AttributeFlags kKeyableInput{true, true, true, false, false, true, true};
/// A setting that is not offered for animation.
inline constexpr AttributeFlags kInput{false, true, true, false, false, true, true};

/// Hard limits of a number, both included.
struct Range
{
    double minimum;
    double maximum;
};

/// One of the values that a choice can take.
struct ChoiceField
{
    const char* name;
    short value;
};

/// What became of one step of an initializer.
struct AttributeStep
{
    const char* function;                   ///< qualified name of the initializer
    const char* problem;                    ///< what failed; null when nothing did
    std::optional<std::string> exception{}; ///< text of a core exception raised in the step
};

/// Whether the step succeeded; a failure is reported at ERROR with the given place.
bool succeeded(const AttributeStep& step, const char* file, int line);

/// Creates attributes, sets their flags and adds them to the node type that is being initialized. Each member
/// stores the attribute object in its first argument and tells how it went.
class NodeAttributes
{
public:
    /// @param function  qualified name of the initializer, for reports; a literal
    explicit NodeAttributes(const char* function) : m_function(function) {}

    /// A colour of three floats; its children's names end in R, G and B.
    AttributeStep color(MObject& attribute, const char* longName, const char* shortName,
                        const MColor& defaultColor, const AttributeFlags& flags) const;
    /// A 32-bit integer.
    AttributeStep integer(MObject& attribute, const char* longName, const char* shortName, int defaultValue,
                          const AttributeFlags& flags) const;
    /// A number in double precision.
    AttributeStep number(MObject& attribute, const char* longName, const char* shortName, double defaultValue,
                         const AttributeFlags& flags, const std::optional<Range>& range = {}) const;
    /// One of several named values; the default is 0.
    AttributeStep choice(MObject& attribute, const char* longName, const char* shortName,
                         std::initializer_list<ChoiceField> fields, const AttributeFlags& flags) const;
    /// A string that is empty until it is set.
    AttributeStep string(MObject& attribute, const char* longName, const char* shortName,
                         const AttributeFlags& flags) const;

private:
    template <class Function, class Create, class Prepare>
    AttributeStep createAndAdd(MObject& attribute, const char* problem, const AttributeFlags& flags,
                               Create create, Prepare prepare) const;

    const char* m_function;
};

/// Runs a step that returns null or what failed; a core exception raised in it becomes the failure.
template <class Step>
AttributeStep attempt(const char* function, Step step)
{
    try {
        return {function, step()};
    } catch (core::Exception& exception) {
        return {function, nullptr, exception.what()};
    }
}

} // namespace tarvox::crowd
