// The kinds of elements of the user interface; see interfaceKinds.h.
#include "interfaceKinds.h"
#include "interfaceParts.h"
#include "interfaceProperties.h"

#include <algorithm>

namespace tvxhost::mel {

using namespace interfaceProperties;

namespace {

using A = ArgumentType;

std::vector<ElementKind> windowsAndMenus()
{
    return {
        {"window",
         "A window",
         Family::window,
         {text("t", "title", "its title"),
          text("in", "iconName", "its icon's text"),
          onOff("s", "sizeable", "can be resized", true),
          onOff("mb", "menuBar", "has a menu bar"),
          onOff("ret", "retain", "outlives its closing"),
          onOff("rtf", "resizeToFitChildren", "follows its content"),
          onOff("i", "iconify", "is an icon"),
          onOff("tb", "titleBar", "has a title bar", true),
          onOff("tlb", "toolbox", "has a small title bar"),
          onOff("mnb", "minimizeButton", "can become an icon", true),
          onOff("mxb", "maximizeButton", "can fill the screen", true),
          onOff("mw", "mainWindow", "is the main window"),
          whole("w", "width", "in pixels"),
          whole("h", "height", "in pixels"),
          wholes("wh", "widthHeight", 2, "in pixels"),
          whole("te", "topEdge", "pixels from the top"),
          whole("le", "leftEdge", "pixels from the left"),
          wholes("tlc", "topLeftCorner", 2, "in pixels"),
          script("cc", "closeCommand", "runs when it closes"),
          script("mnc", "minimizeCommand", "runs when it becomes an icon"),
          script("rc", "restoreCommand", "runs when it is no icon any more"),
          colour("bgc", "backgroundColor", "behind its content"),
          text("dtg", "docTag", "a word of its maker")}},
        {"menu",
         "A menu of a window",
         Family::menu,
         {text("l", "label", "its text"), onOff("to", "tearOff", "can be torn off"),
          onOff("en", "enable", "can be used", true), onOff("vis", "visible", "is shown", true),
          onOff("hm", "helpMenu", "stands at the right"),
          onOff("aob", "allowOptionBoxes", "items may have option boxes"),
          property("mn", "mnemonic", A::string, "its key", Value("")),
          script("pmc", "postMenuCommand", "runs before it opens"),
          onOff("pmo", "postMenuCommandOnce", "runs it the first time only"),
          text("fm", "familyImage", "its picture"), text("dtg", "docTag", "a word of its maker")}},
        {"popupMenu",
         "A menu that a mouse button opens",
         Family::menu,
         {whole("b", "button", "the mouse button", 3), onOff("alt", "altModifier", "with Alt"),
          onOff("ctl", "ctrlModifier", "with Ctrl"), onOff("sh", "shiftModifier", "with Shift"),
          onOff("aob", "allowOptionBoxes", "items may have option boxes"),
          onOff("mm", "markingMenu", "is a marking menu"),
          script("pmc", "postMenuCommand", "runs before it opens")}},
        {"menuItem",
         "An item of a menu",
         Family::menuItem,
         {text("l", "label", "its text"),
          script("c", "command", "runs when it is chosen"),
          script("dmc", "dragMenuCommand", "runs when it is dragged"),
          script("ddc", "dragDoubleClickCommand", "runs when it is clicked twice"),
          text("ann", "annotation", "its explanation"),
          onOff("d", "divider", "a line between items"),
          text("dl", "dividerLabel", "the text of such a line"),
          onOff("sm", "subMenu", "a menu in the menu"),
          onOff("ob", "optionBox", "the option box of the item before"),
          text("obi", "optionBoxIcon", "that box's picture"),
          onOff("cb", "checkBox", "on or off"),
          onOff("rb", "radioButton", "one of a group"),
          onOff("en", "enable", "can be chosen", true),
          onOff("vis", "visible", "is shown", true),
          text("i", "image", "its picture"),
          onOff("to", "tearOff", "can be torn off"),
          onOff("bld", "boldFont", "in bold"),
          onOff("itl", "italicized", "in italics"),
          onOff("ecr", "enableCommandRepeat", "can be repeated", true),
          onOff("aob", "allowOptionBoxes", "items of a sub-menu may have option boxes"),
          text("rp", "radialPosition", "N, NE, E … in a marking menu"),
          text("ec", "echoCommand", "shows the command"),
          text("ltv", "localizedText", "its text here"),
          text("cl", "collection", "the group of its radio button"),
          script("pmc", "postMenuCommand", "runs before a sub-menu opens"),
          property("da", "data", A::integer, "a number of its maker", Value(0)),
          text("dtg", "docTag", "a word of its maker")}},
        {"radioCollection", "Radio buttons of which one is on", Family::collection, {}, &collectionPart()},
        {"radioMenuItemCollection", "Radio items of which one is on", Family::collection, {}},
    };
}

std::vector<ElementKind> layouts()
{
    return {
        {"columnLayout",
         "Controls one below the other",
         Family::layout,
         {onOff("adj", "adjustableColumn", "as wide as the window"),
          whole("rs", "rowSpacing", "pixels between rows"),
          text("cal", "columnAlign", "left, right or center"),
          whole("cw", "columnWidth", "in pixels"),
          {{"cat", "columnAttach", {A::string, A::integer}, kAllModes, "where controls hang, and pixels"},
           Value("")},
          whole("co", "columnOffset", "pixels beside controls")}},
        {"rowLayout", "Controls side by side", Family::layout, columns()},
        {"rowColumnLayout", "Controls in rows and columns", Family::layout,
         joined({columns(), {whole("nr", "numberOfRows", "how many rows")}})},
        {"flowLayout",
         "Controls one after the other",
         Family::layout,
         {onOff("vr", "vertical", "from top to bottom"), onOff("wr", "wrap", "in several lines"),
          whole("cs", "columnSpacing", "pixels between controls")}},
        {"gridLayout",
         "Controls of one size",
         Family::layout,
         {whole("nc", "numberOfColumns", "how many columns"), whole("nr", "numberOfRows", "how many rows"),
          whole("cw", "cellWidth", "in pixels"), whole("ch", "cellHeight", "in pixels"),
          wholes("cwh", "cellWidthHeight", 2, "in pixels"),
          onOff("ag", "autoGrow", "grows with its content", true)}},
        {"frameLayout", "Controls in a frame", Family::layout,
         joined(
             {label(),
              {onOff("cll", "collapsable", "can be closed"), onOff("cl", "collapse", "is closed"),
               onOff("bv", "borderVisible", "has a border"), onOff("lv", "labelVisible", "has a text", true),
               text("bs", "borderStyle", "obsolete"), text("li", "labelAlign", "obsolete"),
               whole("mw", "marginWidth", "pixels beside its content"),
               whole("mh", "marginHeight", "pixels above its content"),
               script("cc", "collapseCommand", "runs when it is closed"),
               script("ec", "expandCommand", "runs when it is opened"),
               script("pcc", "preCollapseCommand", "runs before it is closed"),
               script("pec", "preExpandCommand", "runs before it is opened")}})},
        {"formLayout",
         "Controls at free places",
         Family::layout,
         {whole("nd", "numberOfDivisions", "of its grid", 100)},
         &formPart()},
        {"scrollLayout",
         "Controls behind a window that moves",
         Family::layout,
         {whole("hst", "horizontalScrollBarThickness", "in pixels"),
          whole("vst", "verticalScrollBarThickness", "in pixels"),
          onOff("cr", "childResizable", "the content is as wide as it"),
          whole("mcw", "minChildWidth", "in pixels")}},
        {"tabLayout", "Layouts behind tabs", Family::layout,
         joined({changes(),
                 {onOff("tv", "tabsVisible", "shows the tabs", true), onOff("scr", "scrollable", "scrolls"),
                  onOff("cr", "childResizable", "the content is as large as it"),
                  whole("imw", "innerMarginWidth", "pixels beside its content"),
                  whole("imh", "innerMarginHeight", "pixels above its content"),
                  script("sc", "selectCommand", "runs when a tab is chosen")}}),
         &tabPart()},
        {"shelfTabLayout", "Shelves behind tabs", Family::layout, changes(), &tabPart()},
        {"shelfLayout",
         "A shelf of buttons",
         Family::layout,
         {text("st", "style", "iconOnly, textOnly, iconAndTextHorizontal …"),
          wholes("cwh", "cellWidthHeight", 2, "in pixels"), whole("cw", "cellWidth", "in pixels"),
          whole("ch", "cellHeight", "in pixels"), whole("spa", "spacing", "pixels between buttons")}},
        {"paneLayout",
         "Controls with bars between them",
         Family::layout,
         {text("cn", "configuration", "single, horizontal2, vertical2 …"),
          {{"ps",
            "paneSize",
            {A::integer, A::integer, A::integer},
            kCreateEdit | kMultiUse,
            "a pane's percents"},
           Value("")},
          whole("st", "separatorThickness", "in pixels")}},
        {"menuBarLayout",
         "A layout with a menu bar",
         Family::layout,
         {onOff("mv", "menuBarVisible", "shows it", true)}},
        {"toolBar", "A bar at the edge of the main window", Family::layout,
         joined(
             {label(),
              {text("a", "area", "top, left, bottom or right"), text("con", "content", "what is in it")}})},
        {"dockControl", "A window that docks at the main window", Family::layout,
         joined({label(),
                 {text("a", "area", "top, left, bottom or right"),
                  text("con", "content", "what is in it"),
                  onOff("fl", "floating", "stands alone"),
                  onOff("s", "sizeable", "can be resized", true),
                  {{"aa", "allowedArea", {A::string}, kCreateEdit | kMultiUse, "where it may dock"},
                   Value("")}}})},
    };
}

std::vector<ElementKind> buttons()
{
    const ElementProperties switches = {onOff("v", "value", "is on"),
                                        script("onc", "onCommand", "runs when it goes on"),
                                        script("ofc", "offCommand", "runs when it goes off")};
    const ElementProperties radio = {onOff("sl", "select", "is on"), text("cl", "collection", "its group"),
                                     script("onc", "onCommand", "runs when it goes on"),
                                     script("ofc", "offCommand", "runs when it goes off")};
    const ElementProperties aligned = {text("al", "align", "left, center or right")};
    return {
        {"button", "A button", Family::control,
         joined({label(),
                 command(),
                 aligned,
                 {onOff("rs", "recomputeSize", "follows its text", true),
                  onOff("ais", "actOnPress", "works when it is pressed")}})},
        {"text", "A line of text", Family::control,
         joined({label(),
                 aligned,
                 {text("fn", "font", "boldLabelFont, smallPlainLabelFont …"),
                  onOff("ww", "wordWrap", "in several lines"), onOff("hl", "hyperlink", "opens its address"),
                  onOff("rs", "recomputeSize", "follows its text", true)}})},
        {"checkBox", "A box to tick", Family::control, joined({label(), switches, changes(), aligned})},
        {"radioButton", "A button of which one is on", Family::control,
         joined({label(), radio, changes(), aligned})},
        {"iconTextButton", "A button with a picture", Family::control,
         joined({label(),
                 command(),
                 icon(),
                 {text("stp", "sourceType", "mel or python"),
                  script("dcc", "doubleClickCommand", "runs when it is clicked twice")}})},
        {"iconTextCheckBox", "A box to tick with a picture", Family::control,
         joined({label(), icon(), switches, changes()})},
        {"iconTextRadioButton", "A radio button with a picture", Family::control,
         joined({label(), icon(), radio, changes()})},
        {"shelfButton", "A button of a shelf", Family::control,
         joined({label(),
                 command(),
                 icon(),
                 {text("stp", "sourceType", "mel or python"),
                  onOff("rpt", "commandRepeatable", "can be repeated"),
                  colour("olc", "overlayLabelColor", "of the text over the picture"),
                  script("dcc", "doubleClickCommand", "runs when it is clicked twice")}})},
        {"symbolButton", "A picture to press", Family::control,
         joined({command(), {text("i", "image", "its picture")}})},
        {"symbolCheckBox", "A picture to tick", Family::control,
         joined({switches,
                 changes(),
                 {text("i", "image", "its picture"), text("oni", "onImage", "its picture when on"),
                  text("ofi", "offImage", "its picture when off")}})},
        {"image", "A picture", Family::control, {text("i", "image", "its file")}},
        {"picture",
         "A picture",
         Family::control,
         {text("i", "image", "its file"), onOff("tl", "tile", "repeats it")}},
        {"separator",
         "A line",
         Family::control,
         {text("st", "style", "in, out, none, single …"), onOff("hr", "horizontal", "lies", true)}},
        {"canvas",
         "A coloured area",
         Family::control,
         {colour("rgb", "rgbValue", "its colour"), colour("hsv", "hsvValue", "its colour"),
          script("pc", "pressCommand", "runs when it is pressed")}},
        {"helpLine", "A line of explanations", Family::control, {}},
        {"progressBar",
         "How far something is",
         Family::control,
         {whole("pr", "progress", "where it is"), whole("min", "minValue", "where it begins"),
          whole("max", "maxValue", "where it ends", 100), text("st", "status", "its text"),
          onOff("ii", "isInterruptable", "Esc stops it"),
          onOff("imp", "isMainProgressBar", "is the main window's"),
          onOff("bp", "beginProgress", "has begun"), onOff("ep", "endProgress", "has ended")},
         &progressPart()},
    };
}

std::vector<ElementKind> fields()
{
    const ElementProperties edited = {onOff("ed", "editable", "can be changed", true),
                                      script("ec", "enterCommand", "runs at Enter"),
                                      script("dc", "dragCommand", "runs while it is dragged")};
    const ElementProperties line = {
        property("tx", "text", A::string, "its text", Value("")),
        property("it", "insertText", A::string, "a text to put in", Value("")),
        property("pht", "placeholderText", A::string, "what is seen while empty", Value("")),
        text("fn", "font", "boldLabelFont, smallPlainLabelFont …")};
    const ElementProperties fieldLimits = {real("fmn", "fieldMinValue", "the least that can be typed"),
                                           real("fmx", "fieldMaxValue", "the most that can be typed", 100.0),
                                           onOff("f", "field", "has a field to type into")};
    const ElementProperties lies = {onOff("hr", "horizontal", "lies", true)};
    const ElementProperties count = {whole("nf", "numberOfFields", "how many fields", 1)};
    return {
        {"textField", "A field for text", Family::control, joined({line, edited, changes()})},
        {"scrollField", "Several lines of text", Family::control,
         joined({line,
                 edited,
                 changes(),
                 {onOff("ww", "wordWrap", "breaks lines"), whole("nl", "numberOfLines", "that are seen")}})},
        {"intField", "A field for a whole number", Family::control,
         joined({wholeRange(), edited, changes()})},
        {"floatField", "A field for a number", Family::control, joined({realRange(), edited, changes()})},
        {"intSlider", "A slider for a whole number", Family::control,
         joined({wholeRange(), edited, changes(), lies})},
        {"floatSlider", "A slider for a number", Family::control,
         joined({realRange(), edited, changes(), lies})},
        {"textScrollList",
         "Lines to select from",
         Family::control,
         {onOff("ams", "allowMultiSelection", "several at a time"),
          whole("nr", "numberOfRows", "that are seen"),
          script("sc", "selectCommand", "runs when a line is selected"),
          script("dcc", "doubleClickCommand", "runs when a line is clicked twice"),
          script("dkc", "deleteKeyCommand", "runs at Delete"),
          whole("shi", "showIndexedItem", "the line in view"),
          text("fn", "font", "boldLabelFont, smallPlainLabelFont …")},
         &listPart()},
        {"optionMenu", "A choice", Family::control, joined({label(), changes()}), &choicePart()},
        {"optionMenuGrp", "A choice with a label", Family::control, joined({group(), changes()}),
         &choicePart()},
        {"textFieldGrp", "A field for text with a label", Family::control,
         joined({group(), line, edited, changes()})},
        {"textFieldButtonGrp", "A field for text with a label and a button", Family::control,
         joined({group(),
                 line,
                 edited,
                 changes(),
                 {text("bl", "buttonLabel", "the button's text"),
                  script("bc", "buttonCommand", "runs when it is pressed")}})},
        {"intFieldGrp", "Fields for whole numbers with a label", Family::control,
         joined({group(), values(A::integer, Value(0)), count, edited, changes()})},
        {"floatFieldGrp", "Fields for numbers with a label", Family::control,
         joined({group(),
                 values(A::number, Value(0.0)),
                 count,
                 edited,
                 changes(),
                 {whole("pre", "precision", "digits behind the point", 3)}})},
        {"intSliderGrp", "A slider for a whole number with a label", Family::control,
         joined({group(), wholeRange(), fieldLimits, edited, changes()})},
        {"floatSliderGrp", "A slider for a number with a label", Family::control,
         joined({group(), realRange(), fieldLimits, edited, changes()})},
        {"colorSliderGrp", "A slider for a colour with a label", Family::control,
         joined({group(),
                 edited,
                 changes(),
                 {colour("rgb", "rgbValue", "its colour"), colour("hsv", "hsvValue", "its colour")}})},
        {"checkBoxGrp", "Boxes to tick with a label", Family::control,
         joined({group(),
                 values(A::boolean, Value(0)),
                 changes(),
                 {whole("ncb", "numberOfCheckBoxes", "how many boxes", 1),
                  text("l1", "label1", "the first box's text"), text("l2", "label2", "the second box's text"),
                  text("l3", "label3", "the third box's text"),
                  text("l4", "label4", "the fourth box's text")}})},
        {"radioButtonGrp", "Radio buttons with a label", Family::control,
         joined(
             {group(),
              changes(),
              {whole("nrb", "numberOfRadioButtons", "how many buttons", 1),
               whole("sl", "select", "the one that is on"), text("l1", "label1", "the first button's text"),
               text("l2", "label2", "the second button's text"),
               text("l3", "label3", "the third button's text"),
               text("l4", "label4", "the fourth button's text")}})},
        {"nameField", "A field for a node's name", Family::control,
         joined({edited, changes(), {text("o", "object", "the node")}})},
    };
}

std::vector<ElementKind> allKinds()
{
    std::vector<ElementKind> all = windowsAndMenus();
    for (std::vector<ElementKind> more : {layouts(), buttons(), fields()})
        all.insert(all.end(), std::make_move_iterator(more.begin()), std::make_move_iterator(more.end()));
    all.push_back({"control", "Edits and tells controls and layouts of any kind", Family::control, {}});
    all.back().isGeneral = true;
    all.push_back({"layout", "Edits and tells layouts of any kind", Family::layout, {}});
    all.back().isGeneral = true;
    for (ElementKind& kind : all)
        if (kind.family == Family::control || kind.family == Family::layout)
            kind.properties = joined({kind.properties, widget()});
    return all;
}

bool isSubMenu(const InterfaceElement& element)
{
    const auto found = element.properties.find("subMenu");
    return found != element.properties.end() && found->second.toBoolean();
}

} // namespace

const std::vector<ElementKind>& elementKinds()
{
    static const std::vector<ElementKind> kinds = allKinds();
    return kinds;
}

const ElementKind& kindOf(const InterfaceElement& element)
{
    const auto& kinds = elementKinds();
    return *std::find_if(kinds.begin(), kinds.end(),
                         [&](const ElementKind& kind) { return kind.name == element.kind; });
}

bool isAbout(const ElementKind& kind, const InterfaceElement& element)
{
    if (kind.name == element.kind)
        return true;
    const Family family = kindOf(element).family;
    if (kind.isGeneral)
        return family == Family::layout || family == kind.family;
    return kind.family == Family::menu && std::string(kind.name) == "menu" &&
           (family == Family::menu || isSubMenu(element));
}

bool holdsItems(const InterfaceElement& element)
{
    const ElementKind& kind = kindOf(element);
    return kind.family == Family::menu || kind.part == &choicePart() || isSubMenu(element);
}

bool holdsControls(const InterfaceElement& element)
{
    const Family family = kindOf(element).family;
    return family == Family::window || family == Family::layout;
}

} // namespace tvxhost::mel
