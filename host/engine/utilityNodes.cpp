// Utility nodes: what they compute with numbers.
#include "utilityNodes.h"

#include "computeSupport.h"
#include "matrixParts.h"
#include "node.h"
#include "ramp.h"
#include "turns.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <string_view>
#include <vector>

namespace tvxhost::engine {

namespace {

using Numbers = std::vector<double>;

int wholeOf(Node& node, std::string_view attribute)
{
    return static_cast<int>(numberOf(node, attribute));
}

/// The result of a calculation for each component; inputs of one node are equally long.
template <typename Calculation, typename... More>
Numbers each(Calculation calculate, const Numbers& first, const More&... more)
{
    Numbers result;
    for (std::size_t i = 0; i < first.size(); ++i)
        result.push_back(calculate(first[i], more[i]...));
    return result;
}

// Products and sums

enum class ProductOperation
{
    none = 0, ///< the first input alone
    multiply = 1,
    divide = 2,
    power = 3
};

double product(ProductOperation operation, double a, double b)
{
    switch (operation) {
    case ProductOperation::multiply:
        return a * b;
    case ProductOperation::divide:
        return a / b;
    case ProductOperation::power:
        return std::pow(a, b);
    case ProductOperation::none:
        break;
    }
    return a;
}

Numbers multiplyDivide(Node& node)
{
    const auto operation = static_cast<ProductOperation>(wholeOf(node, "operation"));
    return each([operation](double a, double b) { return product(operation, a, b); },
                numbersOf(node, "input1"), numbersOf(node, "input2"));
}

Numbers addDoubleLinear(Node& node)
{
    return {numberOf(node, "input1") + numberOf(node, "input2")};
}

Numbers multDoubleLinear(Node& node)
{
    return {numberOf(node, "input1") * numberOf(node, "input2")};
}

enum class SumOperation
{
    none = 0, ///< the first input alone
    sum = 1,
    subtract = 2,
    average = 3
};

/// What the elements of an array come to, component by component.
Numbers combined(const Plug& inputs, SumOperation operation, std::size_t componentCount)
{
    Numbers total(componentCount, 0.0);
    const std::vector<int> elements = existingElements(inputs);
    const std::size_t count = operation == SumOperation::none && !elements.empty() ? 1 : elements.size();
    for (std::size_t i = 0; i < count; ++i) {
        const double sign = operation == SumOperation::subtract && i > 0 ? -1.0 : 1.0;
        const Numbers input = readNumbers(inputs.element(elements[i])).value;
        for (std::size_t k = 0; k < componentCount && k < input.size(); ++k)
            total[k] += sign * input[k];
    }
    if (operation == SumOperation::average && count > 0)
        for (double& component : total)
            component /= static_cast<double>(count);
    return total;
}

template <std::size_t componentCount>
Numbers plusMinusAverage(Node& node, std::string_view inputs)
{
    return combined(plugOf(node, inputs), static_cast<SumOperation>(wholeOf(node, "operation")),
                    componentCount);
}

Numbers dimension(Node& node)
{
    return {(vectorOf(node, "endPoint") - vectorOf(node, "startPoint")).length()};
}

// Ranges

Numbers reversed(Node& node)
{
    return each([](double value) { return 1.0 - value; }, numbersOf(node, "input"));
}

Numbers clamped(Node& node)
{
    return each([](double value, double low, double high) { return std::min(std::max(value, low), high); },
                numbersOf(node, "input"), numbersOf(node, "min"), numbersOf(node, "max"));
}

/// How far a value is on the way from one end to the other, at most the whole way; nowhere when both are one.
double fraction(double value, double from, double to)
{
    return from == to ? 0.0 : std::clamp((value - from) / (to - from), 0.0, 1.0);
}

Numbers rangeSet(Node& node)
{
    const auto moved = [](double value, double oldMin, double oldMax, double low, double high) {
        return low + fraction(value, oldMin, oldMax) * (high - low);
    };
    return each(moved, numbersOf(node, "value"), numbersOf(node, "oldMin"), numbersOf(node, "oldMax"),
                numbersOf(node, "min"), numbersOf(node, "max"));
}

/// What a ramp of the node yields for an input; one without entries yields the position itself.
Numbers rampOutput(Node& node, std::string_view ramp, double input)
{
    const std::vector<RampEntry> entries = rampEntries(plugOf(node, ramp));
    const double position = fraction(input, numberOf(node, "inputMin"), numberOf(node, "inputMax"));
    if (entries.empty())
        return Numbers(3, position);
    const auto value = rampValueAt(entries, position);
    return {value.begin(), value.end()};
}

/// The number that a ramp yields, in the range of the outputs.
double remapped(Node& node, std::string_view ramp, double input)
{
    const double low = numberOf(node, "outputMin");
    const double high = numberOf(node, "outputMax");
    return low + rampOutput(node, ramp, input).front() * (high - low);
}

Numbers remappedValue(Node& node)
{
    return {remapped(node, "value", numberOf(node, "inputValue"))};
}

Numbers valueColor(Node& node)
{
    return rampOutput(node, "color", numberOf(node, "inputValue"));
}

Numbers remappedColor(Node& node)
{
    const Numbers color = numbersOf(node, "color");
    return {remapped(node, "red", color[0]), remapped(node, "green", color[1]),
            remapped(node, "blue", color[2])};
}

// Colours

Numbers gammaCorrected(Node& node)
{
    return each([](double value, double gamma) { return std::pow(value, 1.0 / gamma); },
                numbersOf(node, "value"), numbersOf(node, "gamma"));
}

Numbers luminance(Node& node)
{
    const Numbers color = numbersOf(node, "value");
    return {0.3 * color[0] + 0.59 * color[1] + 0.11 * color[2]};
}

/// Hue, saturation and value from red, green and blue; the hue in degrees.
Numbers hsvOf(const Numbers& rgb)
{
    const double value = std::max({rgb[0], rgb[1], rgb[2]});
    const double range = value - std::min({rgb[0], rgb[1], rgb[2]});
    if (range == 0.0)
        return {0.0, 0.0, value};
    double sixths = (rgb[0] - rgb[1]) / range + 4.0;
    if (rgb[0] == value)
        sixths = (rgb[1] - rgb[2]) / range;
    else if (rgb[1] == value)
        sixths = (rgb[2] - rgb[0]) / range + 2.0;
    return {60.0 * (sixths < 0.0 ? sixths + 6.0 : sixths), value == 0.0 ? 0.0 : range / value, value};
}

/// The other way; a hue outside the circle goes round it.
Numbers rgbOf(const Numbers& hsv)
{
    const double sixths = hsv[0] / 60.0;
    const auto channel = [&](double begin) {
        const double turn = std::fmod(std::fmod(sixths + begin, 6.0) + 6.0, 6.0);
        return hsv[2] * (1.0 - hsv[1] * std::clamp(std::min(turn, 4.0 - turn), 0.0, 1.0));
    };
    return {channel(5.0), channel(3.0), channel(1.0)};
}

/// Ramps have hues from 0 to 1 all around the circle.
Numbers remappedHsv(Node& node)
{
    constexpr double kCircle = 360.0;
    const Numbers hsv = hsvOf(numbersOf(node, "color"));
    return rgbOf({kCircle * remapped(node, "hue", hsv[0] / kCircle), remapped(node, "saturation", hsv[1]),
                  remapped(node, "value", hsv[2])});
}

// Choices and blends

double mixed(double first, double second, double part)
{
    return first * part + second * (1.0 - part);
}

Numbers blendedColors(Node& node)
{
    const double blender = numberOf(node, "blender");
    return each([blender](double first, double second) { return mixed(first, second, blender); },
                numbersOf(node, "color1"), numbersOf(node, "color2"));
}

bool holds(int comparison, double first, double second)
{
    switch (comparison) {
    case 0:
        return first == second;
    case 1:
        return first != second;
    case 2:
        return first > second;
    case 3:
        return first >= second;
    case 4:
        return first < second;
    default:
        return first <= second;
    }
}

Numbers condition(Node& node)
{
    const bool isTrue =
        holds(wholeOf(node, "operation"), numberOf(node, "firstTerm"), numberOf(node, "secondTerm"));
    return numbersOf(node, isTrue ? "colorIfTrue" : "colorIfFalse");
}

Numbers blendedTwo(Node& node)
{
    const Plug inputs = plugOf(node, "input");
    const double part = numberOf(node, "attributesBlender");
    return {mixed(readNumber(inputs.element(1)).value.asReal(), readNumber(inputs.element(0)).value.asReal(),
                  part)};
}

Numbers blendedWeighted(Node& node)
{
    const Plug inputs = plugOf(node, "input");
    const Plug weights = plugOf(node, "weight");
    double sum = 0.0;
    for (const int index : existingElements(inputs))
        sum += readNumber(inputs.element(index)).value.asReal() *
               readNumber(weights.element(index)).value.asReal();
    return {sum};
}

/// How much of the second input a pair blend takes for an attribute that chooses between its inputs.
double secondPart(Node& node, std::string_view mode)
{
    enum Mode
    {
        blend = 0,
        firstOnly = 1,
        secondOnly = 2
    };
    switch (wholeOf(node, mode)) {
    case firstOnly:
        return 0.0;
    case secondOnly:
        return 1.0;
    default:
        return numberOf(node, "weight");
    }
}

Numbers pairTranslate(Node& node)
{
    const Numbers parts = {secondPart(node, "translateXMode"), secondPart(node, "translateYMode"),
                           secondPart(node, "translateZMode")};
    return each(mixed, numbersOf(node, "inTranslate2"), numbersOf(node, "inTranslate1"), parts);
}

Numbers pairRotate(Node& node)
{
    constexpr int kQuaternion = 1;
    const double part = secondPart(node, "rotateMode");
    if (wholeOf(node, "rotInterpolation") != kQuaternion)
        return each(mixed, numbersOf(node, "inRotate2"), numbersOf(node, "inRotate1"), Numbers(3, part));
    const int order = wholeOf(node, "rotateOrder");
    const Turn first = turnOf(vectorOf(node, "inRotate1"), order);
    const Turn second = turnOf(vectorOf(node, "inRotate2"), order);
    const Vec3d angles = anglesOf(blended(first, second, part).toMatrix44(), order);
    return {angles.x, angles.y, angles.z};
}

Numbers muted(Node& node)
{
    return {numberOf(node, numberOf(node, "mute") != 0.0 ? "hold" : "input")};
}

/// What tells a group of components from all others: no two nodes of a scene have the same serial number.
Numbers groupNumber(Node& node)
{
    return {static_cast<double>(node.serial())};
}

/// The numbers of one output.
using Formula = Numbers (*)(Node& node);

struct FormulaRow
{
    std::string_view type;
    std::string_view output;
    Formula formula;
};

constexpr FormulaRow kFormulas[] = {
    {"addDoubleLinear", "output", addDoubleLinear},
    {"blendColors", "output", blendedColors},
    {"blendTwoAttr", "output", blendedTwo},
    {"blendWeighted", "output", blendedWeighted},
    {"clamp", "output", clamped},
    {"condition", "outColor", condition},
    {"distanceDimShape", "distance", dimension},
    {"gammaCorrect", "outValue", gammaCorrected},
    {"groupId", "groupId", groupNumber},
    {"hsvToRgb", "outRgb", [](Node& node) { return rgbOf(numbersOf(node, "inHsv")); }},
    {"luminance", "outValue", luminance},
    {"multDoubleLinear", "output", multDoubleLinear},
    {"multiplyDivide", "output", multiplyDivide},
    {"mute", "output", muted},
    {"pairBlend", "outRotate", pairRotate},
    {"pairBlend", "outTranslate", pairTranslate},
    {"plusMinusAverage", "output1D", [](Node& node) { return plusMinusAverage<1>(node, "input1D"); }},
    {"plusMinusAverage", "output2D", [](Node& node) { return plusMinusAverage<2>(node, "input2D"); }},
    {"plusMinusAverage", "output3D", [](Node& node) { return plusMinusAverage<3>(node, "input3D"); }},
    {"remapColor", "outColor", remappedColor},
    {"remapHsv", "outColor", remappedHsv},
    {"remapValue", "outColor", valueColor},
    {"remapValue", "outValue", remappedValue},
    {"reverse", "output", reversed},
    {"rgbToHsv", "outHsv", [](Node& node) { return hsvOf(numbersOf(node, "inRgb")); }},
    {"setRange", "outValue", rangeSet},
};

Computed computeFormula(Node& node, const Plug& plug)
{
    const Plug output = topPlug(plug);
    for (const FormulaRow& row : kFormulas)
        if (row.output == output.attribute()->longName && row.type == node.type().name) {
            finishNumbers(output, row.formula(node));
            return Computed::done;
        }
    return Computed::unknown;
}

/// Hands on whatever the chosen input has.
Computed computeChoice(Node& node, const Plug& plug)
{
    if (plug.attribute()->longName != "output")
        return Computed::unknown;
    const Expected<Ref<Data>> chosen = readData(plugOf(node, "input").element(wholeOf(node, "selector")));
    if (!chosen || !chosen.value)
        return Computed::failed;
    finishData(plug, chosen.value->clone());
    return Computed::done;
}

} // namespace

void addUtilityComputes(TypeTable& types)
{
    for (const FormulaRow& row : kFormulas)
        types.find(std::string(row.type))->compute = computeFormula;
    types.find("choice")->compute = computeChoice;
}

} // namespace tvxhost::engine
