// Properties of elements of the user interface; see interfaceProperties.h.
#include "interfaceProperties.h"

#include <utility>

namespace tvxhost::mel::interfaceProperties {

using A = ArgumentType;

ElementProperty property(const char* shortName, const char* longName, A type, const char* help,
                         Value otherwise)
{
    return {valueFlag(shortName, longName, type, help, kAllModes), std::move(otherwise)};
}

ElementProperty text(const char* shortName, const char* longName, const char* help)
{
    return property(shortName, longName, A::string, help, Value(""));
}

ElementProperty script(const char* shortName, const char* longName, const char* help)
{
    return property(shortName, longName, A::script, help, Value(""));
}

ElementProperty onOff(const char* shortName, const char* longName, const char* help, bool otherwise)
{
    return property(shortName, longName, A::boolean, help, Value(otherwise));
}

ElementProperty whole(const char* shortName, const char* longName, const char* help, int otherwise)
{
    return property(shortName, longName, A::integer, help, Value(otherwise));
}

ElementProperty real(const char* shortName, const char* longName, const char* help, double otherwise)
{
    return property(shortName, longName, A::number, help, Value(otherwise));
}

ElementProperty wholes(const char* shortName, const char* longName, std::size_t count, const char* help)
{
    return {{shortName, longName, std::vector<A>(count, A::integer), kAllModes, help},
            Value(Value::Integers(count))};
}

ElementProperty colour(const char* shortName, const char* longName, const char* help)
{
    return {{shortName, longName, {A::number, A::number, A::number}, kAllModes, help},
            Value(Value::Numbers(3))};
}

ElementProperty perColumn(const char* shortName, const char* longName, A type, const char* help)
{
    return {{shortName, longName, {A::integer, type}, kCreateEdit | kMultiUse, help}, Value("")};
}

ElementProperties joined(std::initializer_list<ElementProperties> lists)
{
    ElementProperties all;
    for (const ElementProperties& list : lists)
        all.insert(all.end(), list.begin(), list.end());
    return all;
}

const ElementProperties& label()
{
    static const ElementProperties shared = {text("l", "label", "its text")};
    return shared;
}

const ElementProperties& command()
{
    static const ElementProperties shared = {script("c", "command", "runs when it is used")};
    return shared;
}

const ElementProperties& changes()
{
    static const ElementProperties shared = {script("cc", "changeCommand", "runs when its value changes")};
    return shared;
}

const ElementProperties& widget()
{
    static const ElementProperties shared = {
        text("ann", "annotation", "its explanation"),
        onOff("en", "enable", "can be used", true),
        onOff("vis", "visible", "is shown", true),
        onOff("m", "manage", "takes room", true),
        whole("w", "width", "in pixels"),
        whole("h", "height", "in pixels"),
        colour("bgc", "backgroundColor", "behind it"),
        onOff("ebg", "enableBackground", "uses that colour"),
        colour("hlc", "highlightColor", "about it when it is lit"),
        onOff("nbg", "noBackground", "shows what is behind it"),
        onOff("po", "preventOverride", "the user cannot change it"),
        text("dtg", "docTag", "a word of whoever made it"),
        text("ut", "useTemplate", "the template that its values come from"),
        text("dt", "defineTemplate", "the template that its values go to"),
        script("dgc", "dragCallback", "runs when something is dragged from it"),
        script("dpc", "dropCallback", "runs when something is dropped on it"),
    };
    return shared;
}

const ElementProperties& icon()
{
    static const ElementProperties shared = {
        text("i", "image", "its picture"),
        text("i1", "image1", "its picture"),
        text("hi", "highlightImage", "its picture under the mouse"),
        text("si", "selectionImage", "its picture when it is on"),
        text("st", "style", "iconOnly, textOnly, iconAndTextHorizontal …"),
        text("iol", "imageOverlayLabel", "a text over its picture"),
        whole("mw", "marginWidth", "pixels beside it"),
        whole("mh", "marginHeight", "pixels above it"),
    };
    return shared;
}

ElementProperties wholeRange()
{
    return {whole("v", "value", "its number"), whole("min", "minValue", "the least"),
            whole("max", "maxValue", "the most", 100), whole("s", "step", "from one to the next", 1)};
}

ElementProperties realRange()
{
    return {real("v", "value", "its number"), real("min", "minValue", "the least"),
            real("max", "maxValue", "the most", 100.0), real("s", "step", "from one to the next", 1.0),
            whole("pre", "precision", "digits behind the point", 3)};
}

const ElementProperties& group()
{
    static const ElementProperties shared = {
        text("l", "label", "its text"),
        text("el", "extraLabel", "a text behind its fields"),
        whole("adj", "adjustableColumn", "the column that takes what room is left"),
        perColumn("cw", "columnWidth", A::integer, "pixels of a column"),
        perColumn("cal", "columnAlign", A::string, "left, right or center in a column"),
        perColumn("cat", "columnAttach", A::string, "where the content of a column hangs"),
        wholes("cw2", "columnWidth2", 2, "pixels of two columns"),
        wholes("cw3", "columnWidth3", 3, "pixels of three columns"),
        wholes("cw4", "columnWidth4", 4, "pixels of four columns"),
    };
    return shared;
}

ElementProperties values(A type, const Value& otherwise)
{
    return {property("v1", "value1", type, "the first value", otherwise),
            property("v2", "value2", type, "the second value", otherwise),
            property("v3", "value3", type, "the third value", otherwise),
            property("v4", "value4", type, "the fourth value", otherwise)};
}

const ElementProperties& columns()
{
    static const ElementProperties shared = {
        whole("nc", "numberOfColumns", "how many columns"),
        property("adj", "adjustableColumn", A::any, "what takes the room that is left", Value(0)),
        perColumn("cw", "columnWidth", A::integer, "pixels of a column"),
        perColumn("cal", "columnAlign", A::string, "left, right or center in a column"),
        perColumn("rs", "rowSpacing", A::integer, "pixels above a row"),
        wholes("cw2", "columnWidth2", 2, "pixels of two columns"),
        wholes("cw3", "columnWidth3", 3, "pixels of three columns"),
    };
    return shared;
}

} // namespace tvxhost::mel::interfaceProperties
