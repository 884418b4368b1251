// PlugTarget: see plugTarget.h.
#include "plugTarget.h"

#include "engine/scene.h"

#include <charconv>
#include <vector>

namespace tvxhost::scene {

using engine::Expected;
using engine::Plug;
using engine::Reason;

namespace {

struct Range
{
    std::size_t open = std::string_view::npos; ///< where its bracket is
    std::size_t close = 0;
    int first = 0;
    int last = 0;
};

bool parseIndex(std::string_view text, int& index)
{
    const auto parsed = std::from_chars(text.data(), text.data() + text.size(), index);
    return parsed.ec == std::errc() && parsed.ptr == text.data() + text.size();
}

Expected<Range> findRange(std::string_view path)
{
    Range range;
    const std::size_t colon = path.find(':');
    if (colon == std::string_view::npos)
        return range;
    const std::size_t open = path.rfind('[', colon);
    const std::size_t close = path.find(']', colon);
    if (open == std::string_view::npos || close == std::string_view::npos)
        return {Reason::notFound, "No object matches name: " + std::string(path)};
    range.close = close;
    if (!parseIndex(path.substr(open + 1, colon - open - 1), range.first) ||
        !parseIndex(path.substr(colon + 1, close - colon - 1), range.last) || range.first < 0 ||
        range.last < range.first)
        return {Reason::badIndex, "Illegal range of elements: " + std::string(path)};
    range.open = open;
    return range;
}

} // namespace

Expected<Plug> PlugTarget::at(int index) const
{
    const Plug element = plug.element(index);
    if (tail.empty())
        return element;
    const engine::Attribute& array = *plug.attribute();
    Expected<Plug> found = plug.node()->findPlug(filePath(element) + "." + tail);
    if (found && !found.value.attribute()->isAtOrBelow(array))
        return {Reason::notFound, "No object matches name: " + plug.node()->name() + "." + tail};
    return found;
}

Expected<PlugTarget> findTarget(engine::Node& node, std::string_view path)
{
    const Expected<Range> range = findRange(path);
    if (!range)
        return range.outcome;
    PlugTarget target;
    const bool isRange = range.value.open != std::string_view::npos;
    Expected<Plug> plug = node.findPlug(std::string(path.substr(0, range.value.open)));
    if (!plug)
        return plug.outcome;
    target.plug = std::move(plug.value);
    if (!isRange)
        return target;
    if (!target.plug.isArray())
        return {Reason::notFound, "No object matches name: " + node.name() + "." + std::string(path)};
    target.isRange = true;
    target.first = range.value.first;
    target.last = range.value.last;
    const std::string_view rest = path.substr(range.value.close + 1);
    if (!rest.empty())
        target.tail = rest.substr(rest.front() == '.' ? 1 : 0);
    return target;
}

Expected<PlugTarget> findTarget(engine::Scene& scene, std::string_view name)
{
    const std::size_t dot = name.find('.');
    if (dot == std::string_view::npos)
        return {Reason::notFound, "No object matches name: " + std::string(name)};
    const Expected<engine::Node*> node = scene.findNode(std::string(name.substr(0, dot)));
    if (!node)
        return node.outcome;
    return findTarget(*node.value, name.substr(dot + 1));
}

std::string filePath(const Plug& plug)
{
    std::vector<const engine::Attribute*> chain;
    for (const engine::Attribute* attribute = plug.attribute(); attribute; attribute = attribute->parent)
        if (attribute == plug.attribute() || attribute->isArray())
            chain.push_back(attribute);
    std::string path;
    int depth = 0;
    for (auto attribute = chain.rbegin(); attribute != chain.rend(); ++attribute) {
        if (!path.empty())
            path += '.';
        path += (*attribute)->shortName;
        if ((*attribute)->isArray() && depth < plug.indexCount()) {
            const int index = plug.indices()[static_cast<std::size_t>(depth++)];
            if (index != Plug::kNoIndex)
                path += '[' + std::to_string(index) + ']';
        }
    }
    return path;
}

} // namespace tvxhost::scene
