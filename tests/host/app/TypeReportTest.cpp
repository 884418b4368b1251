// What is told about a node type, as a table and as JSON.
#include "app/typeReport.h"

#include "engine/scene.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace {

using namespace tvxhost;
using engine::Attribute;
using engine::AttributeKind;
using engine::NumberKind;
using engine::Ref;
using nlohmann::json;

class TypeReport : public testing::Test
{
protected:
    TypeReport() { m_scene.newScene(); }

    engine::NodeType& addType(const std::string& name, const std::string& parent, std::uint32_t id)
    {
        const auto type = m_scene.types().add(name, id, *m_scene.types().find(parent));
        EXPECT_TRUE(type) << type.outcome.text;
        return *type.value;
    }

    /// A type with an attribute of each kind that a report tells apart.
    engine::NodeType& addTint()
    {
        engine::NodeType& type = addType("tint", "THdependNode", 0x7f110);
        type.plugin = "samples";
        type.classification = "utility/color:swatch/tintSwatch";

        const Ref<Attribute> output = engine::makeColor("output", "op");
        output->flags.writable = false;
        output->flags.storable = false;
        output->children[0]->defaultNumber = 1;
        output->children[1]->defaultNumber = 0.45F;
        add(type, output);

        const Ref<Attribute> amount = engine::makeNumber("amount", "am", NumberKind::real, 0.25);
        amount->flags.keyable = true;
        amount->minimum = -1;
        amount->maximum = 1;
        amount->softMaximum = 0.5;
        add(type, amount);

        const Ref<Attribute> mode(new Attribute(AttributeKind::enumeration, "mode", "md"));
        mode->number = NumberKind::shortInteger;
        mode->fields = {{"off", 0}, {"on low", 5}};
        add(type, mode);

        const Ref<Attribute> note(new Attribute(AttributeKind::typed, "note", "nt"));
        note->dataType = engine::DataType::string;
        add(type, note);

        EXPECT_TRUE(type.addAffects(*amount, *output));
        EXPECT_TRUE(type.addAffects(*mode, *output));
        return type;
    }

    static void add(engine::NodeType& type, const Ref<Attribute>& attribute)
    {
        const engine::Outcome added = type.addAttribute(attribute);
        EXPECT_TRUE(added) << added.text;
    }

    engine::Scene m_scene;
};

TEST_F(TypeReport, IsATableOfTheAttributesThatTheTypeAdds)
{
    EXPECT_EQ(app::describeAsText(addTint(), {}),
              "tint\n"
              "  plug-in: samples\n"
              "  id: 0x0007F110\n"
              "  inherits: THdependNode node\n"
              "  classification: utility/color:swatch/tintSwatch\n"
              "  inherited attributes: 6\n"
              "  own attributes: 4\n"
              "\n"
              "long name  short name  type    default   limits                flags     affects\n"
              "output     op          float3  1 0.45 0                        -R---I-C\n"
              "  outputR    opr       float   1                               -RW--IS-\n"
              "  outputG    opg       float   0.45                            -RW--IS-\n"
              "  outputB    opb       float   0                               -RW--IS-\n"
              "amount     am          double  0.25      -1 .. 1, soft <= 0.5  KRW--IS-  output\n"
              "mode       md          enum    0         0 off, 5 on low       -RW--IS-  output\n"
              "note       nt          string  none                            -RW--IS-\n"
              "\n"
              "flags: K keyable, R readable, W writable, H hidden, A array, I indexMatters, S storable, "
              "C usedAsColor\n");
}

TEST_F(TypeReport, LeavesOutColumnsWithoutContent)
{
    engine::NodeType& type = addType("flat", "locator", 0x7f111);
    add(type, engine::makeNumber("frame", "cfr", NumberKind::integer, 0));
    EXPECT_THAT(app::describeAsText(type, {}),
                testing::HasSubstr("\n"
                                   "long name  short name  type  default  flags\n"
                                   "frame      cfr         long  0        -RW--IS-\n"
                                   "\n"));
}

TEST_F(TypeReport, QuotesTheDefaultOfAString)
{
    engine::NodeType& type = addType("label", "THdependNode", 0x7f114);
    const Ref<Attribute> text(new Attribute(AttributeKind::typed, "text", "tx"));
    text->dataType = engine::DataType::string;
    text->defaultData = Ref<engine::Data>(new engine::StringData("a \"b\""));
    add(type, text);
    EXPECT_THAT(app::describeAsText(type, {}), testing::HasSubstr("string  \"a \\\"b\\\"\"  -RW--IS-\n"));
    EXPECT_EQ(json::parse(app::describeAsJson(type, {}))["attributes"][0]["default"], "a \"b\"");
}

TEST_F(TypeReport, OfATypeWithoutAttributesOfItsOwnSaysSo)
{
    EXPECT_EQ(app::describeAsText(addType("bare", "THdependNode", 0x7f112), {}),
              "bare\n"
              "  id: 0x0007F112\n"
              "  inherits: THdependNode node\n"
              "  inherited attributes: 6\n"
              "  own attributes: 0\n");
}

TEST_F(TypeReport, GivesNumbersInTheUnitsOfTheUser)
{
    engine::NodeType& type = addType("crane", "THdependNode", 0x7f113);
    const Ref<Attribute> reach(new Attribute(AttributeKind::unit, "reach", "rc"));
    reach->number = NumberKind::real;
    reach->unit = engine::UnitKind::distance;
    reach->defaultNumber = 250;
    reach->minimum = 10;
    add(type, reach);
    engine::Units units;
    units.linear = *engine::linearUnitNamed("m");
    EXPECT_THAT(app::describeAsText(type, units),
                testing::HasSubstr("reach      rc          doubleLinear  2.5      "
                                   ">= 0.1  -RW--IS-\n"));
    EXPECT_EQ(json::parse(app::describeAsJson(type, units))["attributes"][0]["minimum"], 0.1);
}

TEST_F(TypeReport, IsOneJsonObjectOnOneLine)
{
    const std::string text = app::describeAsJson(addTint(), {});
    EXPECT_EQ(text.find('\n'), text.size() - 1);
    const json report = json::parse(text);
    EXPECT_EQ(report["name"], "tint");
    EXPECT_EQ(report["id"], 0x7f110);
    EXPECT_EQ(report["plugin"], "samples");
    EXPECT_EQ(report["inherits"], (json{"THdependNode", "node"}));
    EXPECT_EQ(report["classification"], "utility/color:swatch/tintSwatch");
    EXPECT_EQ(report["inheritedAttributes"], 6);
    ASSERT_EQ(report["attributes"].size(), 4u);

    const json& output = report["attributes"][0];
    EXPECT_EQ(output["default"], (json{1.0, 0.45, 0.0}));
    EXPECT_EQ(output["flags"], json::parse(R"({"keyable": false, "readable": true, "writable": false,
        "hidden": false, "array": false, "indexMatters": true, "storable": false, "usedAsColor": true})"));
    ASSERT_EQ(output["children"].size(), 3u);
    EXPECT_EQ(output["children"][1]["longName"], "outputG");
    EXPECT_EQ(output["children"][1]["shortName"], "opg");

    EXPECT_EQ(report["attributes"][1], json::parse(R"({"longName": "amount", "shortName": "am",
        "type": "double", "default": 0.25, "minimum": -1, "maximum": 1, "softMinimum": null,
        "softMaximum": 0.5, "flags": {"keyable": true, "readable": true, "writable": true, "hidden": false,
        "array": false, "indexMatters": true, "storable": true, "usedAsColor": false}, "fields": [],
        "affects": ["output"], "children": []})"));
    EXPECT_EQ(report["attributes"][2]["fields"],
              json::parse(R"([{"name": "off", "value": 0}, {"name": "on low", "value": 5}])"));
    EXPECT_EQ(report["attributes"][3]["default"], nullptr);
}

} // namespace
