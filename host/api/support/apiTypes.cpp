// What an object of the engine is in terms of MFn::Type.
#include "apiTypes.h"

#include "apiTypeNames.h"
#include "engine/attribute.h"
#include "engine/data.h"
#include "engine/node.h"
#include "engine/scene.h"

#include <bitset>
#include <cctype>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

namespace tvxhost::api {

namespace {

using engine::Attribute;
using engine::AttributeKind;
using engine::Data;
using engine::DataType;
using engine::Node;
using engine::NodeType;
using engine::NumberKind;
using engine::NumericData;
using engine::ObjectClass;
using engine::UnitKind;

using TypeByName = std::unordered_map<std::string, MFn::Type>;

/// Node types whose enumerator is not the type's name with a "k" before it.
const TypeByName& irregularNodeTypes()
{
    static const TypeByName types = {
        {"node", MFn::kDependencyNode},
        {"file", MFn::kFileTexture},
        {"objectSet", MFn::kSet},
        {"lightLinker", MFn::kLightLink},
        {"bump2d", MFn::kBump},
        {"animCurveTA", MFn::kAnimCurveTimeToAngular},
        {"animCurveTL", MFn::kAnimCurveTimeToDistance},
        {"animCurveTT", MFn::kAnimCurveTimeToTime},
        {"animCurveTU", MFn::kAnimCurveTimeToUnitless},
        {"animCurveUA", MFn::kAnimCurveUnitlessToAngular},
        {"animCurveUL", MFn::kAnimCurveUnitlessToDistance},
        {"animCurveUT", MFn::kAnimCurveUnitlessToTime},
        {"animCurveUU", MFn::kAnimCurveUnitlessToUnitless},
        {"geometryFilter", MFn::kGeometryFilt},
        {"weightGeometryFilter", MFn::kWeightGeometryFilt},
        {"cluster", MFn::kClusterFilter},
        {"clusterHandle", MFn::kCluster},
        {"softMod", MFn::kSoftModFilter},
        {"softModHandle", MFn::kSoftMod},
        {"skinCluster", MFn::kSkinClusterFilter},
        {"renderLight", MFn::kLight},
        {"nonAmbientLightShapeNode", MFn::kNonAmbientLight},
        {"nonExtendedLightShapeNode", MFn::kNonExtendedLight},
        {"curveShape", MFn::kCurve},
        {"polyExtrudeFace", MFn::kPolyExtrudeFacet},
        {"polyMergeFace", MFn::kPolyMergeFacet},
        {"polyMoveFace", MFn::kPolyMoveFacet},
        {"polySubdFace", MFn::kPolySubdFacet},
        {"deleteFacet", MFn::kPolyDelFacet},
        {"defaultShaderList", MFn::kShaderList},
        {"defaultTextureList", MFn::kTextureList},
        {"defaultRenderUtilityList", MFn::kRenderUtilityList},
        {"defaultRenderingList", MFn::kRenderingList},
        {"ikRPsolver", MFn::kRPsolver},
        {"ikSCsolver", MFn::kSCsolver},
        {"ikMCsolver", MFn::kMCsolver},
        {"ikSplineSolver", MFn::kSplineSolver},
    };
    return types;
}

/// "kTransform" → kTransform, up to the last node type of the enumeration.
const TypeByName& typesByEnumerator()
{
    static const TypeByName types = [] {
        TypeByName made;
        for (int i = MFn::kDependencyNode; i < MFn::kLast; ++i)
            made.emplace(apiTypeName(i), static_cast<MFn::Type>(i));
        return made;
    }();
    return types;
}

MFn::Type builtInTypeNamed(const std::string& name)
{
    const auto irregular = irregularNodeTypes().find(name);
    if (irregular != irregularNodeTypes().end())
        return irregular->second;
    std::string enumerator = "k" + name;
    enumerator[1] = static_cast<char>(std::toupper(static_cast<unsigned char>(enumerator[1])));
    const auto regular = typesByEnumerator().find(enumerator);
    return regular == typesByEnumerator().end() ? MFn::kInvalid : regular->second;
}

/// The kind of a plug-in's node by the built-in type it stands on.
MFn::Type pluginTypeOn(const NodeType& type)
{
    static const struct
    {
        const char* base;
        MFn::Type type;
    } kinds[] = {
        {"THlocatorShape", MFn::kPluginLocatorNode}, {"locator", MFn::kPluginLocatorNode},
        {"transform", MFn::kPluginTransformNode},    {"shape", MFn::kPluginShape},
        {"objectSet", MFn::kPluginObjectSet},
    };
    for (const auto& kind : kinds)
        if (type.isA(kind.base))
            return kind.type;
    return MFn::kPluginDependNode;
}

/// The type that this very node type adds to those of its parent; kInvalid when it adds none.
MFn::Type ownType(const NodeType& type)
{
    return type.plugin.empty() ? builtInTypeNamed(type.name) : pluginTypeOn(type);
}

/// The function sets for nodes of a type. Every function set asks for them, so they are put together once.
class FunctionSets : public NodeType::Notes
{
public:
    explicit FunctionSets(const NodeType& nodeType)
    {
        for (const MFn::Type any : {MFn::kBase, MFn::kNamedObject, MFn::kDependencyNode})
            m_types.set(any);
        for (const NodeType* t = &nodeType; t; t = t->parent)
            m_types.set(ownType(*t));
        m_types.reset(MFn::kInvalid); // said of a type that adds none
    }

    bool have(MFn::Type type) const { return type < MFn::kLast && m_types[type]; }

private:
    std::bitset<MFn::kLast> m_types;
};

MFn::Type groupType(NumberKind kind, std::size_t count, const MFn::Type (&byKind)[4], MFn::Type fourDoubles)
{
    if (kind == NumberKind::real && count == 4)
        return fourDoubles;
    switch (kind) {
    case NumberKind::real:
        return byKind[0];
    case NumberKind::single:
        return byKind[1];
    case NumberKind::shortInteger:
        return byKind[2];
    case NumberKind::integer:
        return byKind[3];
    default:
        return MFn::kInvalid;
    }
}

MFn::Type numericAttributeType(const Attribute& attribute)
{
    static constexpr MFn::Type kTwo[4] = {MFn::kAttribute2Double, MFn::kAttribute2Float,
                                          MFn::kAttribute2Short, MFn::kAttribute2Int};
    static constexpr MFn::Type kThree[4] = {MFn::kAttribute3Double, MFn::kAttribute3Float,
                                            MFn::kAttribute3Short, MFn::kAttribute3Int};
    if (!attribute.isNumberGroup())
        return MFn::kNumericAttribute;
    const std::size_t count = attribute.children.size();
    const MFn::Type type =
        groupType(attribute.number, count, count == 2 ? kTwo : kThree, MFn::kAttribute4Double);
    return type == MFn::kInvalid ? MFn::kNumericAttribute : type;
}

MFn::Type unitAttributeType(UnitKind unit)
{
    switch (unit) {
    case UnitKind::angle:
        return MFn::kDoubleAngleAttribute;
    case UnitKind::distance:
        return MFn::kDoubleLinearAttribute;
    case UnitKind::time:
        return MFn::kTimeAttribute;
    case UnitKind::none:
        break;
    }
    return MFn::kUnitAttribute;
}

MFn::Type attributeType(const Attribute& attribute)
{
    switch (attribute.kind) {
    case AttributeKind::numeric:
        return numericAttributeType(attribute);
    case AttributeKind::unit:
        return unitAttributeType(attribute.unit);
    case AttributeKind::enumeration:
        return MFn::kEnumAttribute;
    case AttributeKind::typed:
        return MFn::kTypedAttribute;
    case AttributeKind::compound:
        return MFn::kCompoundAttribute;
    case AttributeKind::message:
        return MFn::kMessageAttribute;
    case AttributeKind::matrix:
        return attribute.singleMatrix ? MFn::kFloatMatrixAttribute : MFn::kMatrixAttribute;
    case AttributeKind::generic:
        return MFn::kGenericAttribute;
    case AttributeKind::lightData:
        return MFn::kLightDataAttribute;
    }
    return MFn::kAttribute;
}

bool attributeHasFn(const Attribute& attribute, MFn::Type type)
{
    switch (type) {
    case MFn::kAttribute:
    case MFn::kNamedObject:
        return true;
    case MFn::kNumericAttribute:
        return attribute.kind == AttributeKind::numeric;
    case MFn::kCompoundAttribute:
        return attribute.isCompound();
    case MFn::kUnitAttribute:
        return attribute.kind == AttributeKind::unit;
    case MFn::kMatrixAttribute:
        return attribute.kind == AttributeKind::matrix;
    default:
        return type == attributeType(attribute);
    }
}

MFn::Type numericDataType(const NumericData& data)
{
    static constexpr MFn::Type kTwo[4] = {MFn::kData2Double, MFn::kData2Float, MFn::kData2Short,
                                          MFn::kData2Int};
    static constexpr MFn::Type kThree[4] = {MFn::kData3Double, MFn::kData3Float, MFn::kData3Short,
                                            MFn::kData3Int};
    if (data.size < 2)
        return MFn::kNumericData;
    const MFn::Type type = groupType(static_cast<NumberKind>(data.kind), static_cast<std::size_t>(data.size),
                                     data.size == 2 ? kTwo : kThree, MFn::kData4Double);
    return type == MFn::kInvalid ? MFn::kNumericData : type;
}

MFn::Type dataType(const Data& data)
{
    switch (data.type()) {
    case DataType::numeric:
        return numericDataType(static_cast<const NumericData&>(data));
    case DataType::string:
        return MFn::kStringData;
    case DataType::matrix:
        return MFn::kMatrixData;
    case DataType::stringArray:
        return MFn::kStringArrayData;
    case DataType::doubleArray:
        return MFn::kDoubleArrayData;
    case DataType::floatArray:
        return MFn::kFloatArrayData;
    case DataType::intArray:
        return MFn::kIntArrayData;
    case DataType::pointArray:
        return MFn::kPointArrayData;
    case DataType::vectorArray:
        return MFn::kVectorArrayData;
    case DataType::matrixArray:
        return MFn::kMatrixArrayData;
    case DataType::componentList:
        return MFn::kComponentListData;
    case DataType::mesh:
        return MFn::kMeshData;
    case DataType::lattice:
        return MFn::kLatticeData;
    case DataType::nurbsCurve:
        return MFn::kNurbsCurveData;
    case DataType::nurbsSurface:
        return MFn::kNurbsSurfaceData;
    case DataType::sphere:
        return MFn::kSphereData;
    case DataType::plugin:
    case DataType::registered:
        return MFn::kPluginData;
    default:
        return MFn::kData;
    }
}

bool dataHasFn(const Data& data, MFn::Type type)
{
    if (type == MFn::kData || type == dataType(data))
        return true;
    if (data.type() == DataType::mesh)
        return type == MFn::kMesh || type == MFn::kGeometryData;
    return type == MFn::kNumericData && data.type() == DataType::numeric;
}

/// The types below one that is no node: attributes and data stand side by side in the enumeration.
struct Range
{
    MFn::Type first = MFn::kInvalid, last = MFn::kInvalid;
    MFn::Type firstGroup = MFn::kInvalid, lastGroup = MFn::kInvalid, fourDoubles = MFn::kInvalid;

    bool holds(MFn::Type type) const
    {
        return (first <= type && type <= last) || (firstGroup <= type && type <= lastGroup) ||
               type == fourDoubles;
    }
};

Range rangeOf(MFn::Type type)
{
    switch (type) {
    case MFn::kAttribute:
        return {MFn::kAttribute, MFn::kMessageAttribute, MFn::kAttribute2Double, MFn::kAttribute3Int,
                MFn::kAttribute4Double};
    case MFn::kNumericAttribute:
        return {MFn::kNumericAttribute, MFn::kNumericAttribute, MFn::kAttribute2Double, MFn::kAttribute3Int,
                MFn::kAttribute4Double};
    case MFn::kUnitAttribute:
        return {MFn::kDoubleAngleAttribute, MFn::kTimeAttribute, MFn::kUnitAttribute, MFn::kUnitAttribute,
                MFn::kUnitAttribute};
    case MFn::kMatrixAttribute:
        return {MFn::kMatrixAttribute, MFn::kFloatMatrixAttribute, MFn::kMatrixAttribute,
                MFn::kMatrixAttribute, MFn::kMatrixAttribute};
    case MFn::kData:
        return {MFn::kData, MFn::kVectorArrayData, MFn::kData, MFn::kData, MFn::kData4Double};
    case MFn::kNumericData:
        return {MFn::kNumericData, MFn::kData3Short, MFn::kNumericData, MFn::kNumericData, MFn::kData4Double};
    default:
        return {};
    }
}

bool isWorld(const Node& node)
{
    const engine::DagNode* dag = node.asDag();
    return dag && dag->isWorld();
}

bool nodeHasFn(const Node& node, MFn::Type type)
{
    if (!isWorld(node))
        return hasFn(node.type(), type);
    return type == MFn::kWorld || type == MFn::kDagNode || type == MFn::kDependencyNode ||
           type == MFn::kNamedObject;
}

} // namespace

MFn::Type apiTypeOf(const NodeType& type)
{
    for (const NodeType* t = &type; t; t = t->parent)
        if (const MFn::Type own = ownType(*t); own != MFn::kInvalid)
            return own;
    return MFn::kDependencyNode;
}

MFn::Type apiTypeOf(const engine::Object* object)
{
    if (!object)
        return MFn::kInvalid;
    switch (object->objectClass()) {
    case ObjectClass::node: {
        const auto& node = static_cast<const Node&>(*object);
        return isWorld(node) ? MFn::kWorld : apiTypeOf(node.type());
    }
    case ObjectClass::attribute:
        return attributeType(static_cast<const Attribute&>(*object));
    case ObjectClass::data:
        return dataType(static_cast<const Data&>(*object));
    case ObjectClass::component:
        return MFn::kComponent;
    case ObjectClass::plugin:
        return MFn::kPlugin;
    }
    return MFn::kInvalid;
}

bool hasFn(const NodeType& nodeType, MFn::Type type)
{
    if (!nodeType.apiNotes)
        nodeType.apiNotes = std::make_unique<FunctionSets>(nodeType);
    return static_cast<const FunctionSets&>(*nodeType.apiNotes).have(type);
}

bool typeHasFn(MFn::Type objectType, MFn::Type type)
{
    if (objectType == type || type == MFn::kBase)
        return true;
    const Range range = rangeOf(type);
    if (range.first != MFn::kInvalid)
        return range.holds(objectType);
    for (const NodeType* node : engine::Scene::current().types().all())
        if (apiTypeOf(*node) == objectType && hasFn(*node, type))
            return true;
    return false;
}

bool hasFn(const engine::Object* object, MFn::Type type)
{
    if (!object)
        return false;
    if (type == MFn::kBase)
        return true;
    switch (object->objectClass()) {
    case ObjectClass::node:
        return nodeHasFn(static_cast<const Node&>(*object), type);
    case ObjectClass::attribute:
        return attributeHasFn(static_cast<const Attribute&>(*object), type);
    case ObjectClass::data:
        return dataHasFn(static_cast<const Data&>(*object), type);
    case ObjectClass::component:
        return type == MFn::kComponent;
    case ObjectClass::plugin:
        return type == MFn::kPlugin;
    }
    return false;
}

} // namespace tvxhost::api
