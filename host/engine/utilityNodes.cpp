// Utility nodes: what they compute with numbers.
#include "utilityNodes.h"

#include "node.h"
#include "plug.h"
#include "values.h"

#include <string>
#include <vector>

namespace tvxhost::engine {

namespace {

/// The operations of plusMinusAverage, as its attribute numbers them.
enum class Operation
{
    none = 0, ///< the first input alone
    sum = 1,
    subtract = 2,
    average = 3
};

/// What the elements of an array come to, component by component.
std::vector<double> combined(const Plug& inputs, Operation operation, std::size_t componentCount)
{
    std::vector<double> total(componentCount, 0.0);
    const std::vector<int> elements = existingElements(inputs);
    const std::size_t count = operation == Operation::none && !elements.empty() ? 1 : elements.size();
    for (std::size_t i = 0; i < count; ++i) {
        const double sign = operation == Operation::subtract && i > 0 ? -1.0 : 1.0;
        const std::vector<double> input = readNumbers(inputs.element(elements[i])).value;
        for (std::size_t k = 0; k < componentCount && k < input.size(); ++k)
            total[k] += sign * input[k];
    }
    if (operation == Operation::average && count > 0)
        for (double& component : total)
            component /= static_cast<double>(count);
    return total;
}

Computed computePlusMinusAverage(Node& node, const Plug& plug)
{
    const Plug output = plug.isChild() ? plug.parent() : plug;
    const std::string& name = output.attribute()->longName;
    if (name.rfind("output", 0) != 0)
        return Computed::unknown;
    // "output2D" is made of "input2D".
    const Plug inputs = node.findPlug("input" + name.substr(6)).value;
    const auto operation =
        static_cast<Operation>(static_cast<int>(readNumber(node.findPlug("operation").value).value.asReal()));
    const std::size_t children = output.childCount();
    const std::vector<double> result = combined(inputs, operation, children > 0 ? children : 1);
    for (std::size_t i = 0; i < result.size(); ++i)
        keepNumber(children > 0 ? output.child(i) : output, Number(result[i]));
    setClean(output);
    return Computed::done;
}

} // namespace

void addUtilityComputes(TypeTable& types)
{
    types.find("plusMinusAverage")->compute = computePlusMinusAverage;
}

} // namespace tvxhost::engine
