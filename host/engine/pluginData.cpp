// PluginData: see pluginData.h.
#include "pluginData.h"

#include <algorithm>

namespace tvxhost::engine {

namespace {

/// What is left of data whose plug-in is gone, or never made an object.
class SettledData final : public PluginData
{
public:
    explicit SettledData(std::shared_ptr<PluginDataType> type) : PluginData(std::move(type)) {}

private:
    Outcome copyFrom(const PluginData&) override { return gone(); }
    Expected<std::string> write() const override { return gone(); }
    Outcome take(const std::vector<ScriptRunner::Result>&) override { return gone(); }
    void dropObject() override {}

    Outcome gone() const
    {
        return {Reason::doesNotExist, "No plug-in knows data of type '" + dataType().name + "'"};
    }
};

void collectDefaults(const Attribute& attribute, std::unordered_set<const Data*>& found)
{
    found.insert(attribute.defaultData.get());
    for (const Ref<Attribute>& child : attribute.children)
        collectDefaults(*child, found);
}

} // namespace

PluginData::PluginData(std::shared_ptr<PluginDataType> type)
    : Data(DataType::registered), m_dataType(std::move(type))
{
    m_dataType->instances.insert(this);
}

PluginData::~PluginData()
{
    m_dataType->instances.erase(this);
}

Ref<Data> PluginData::clone() const
{
    if (!m_kept)
        if (const auto made = makePluginData(m_dataType))
            if (made.value->copyFrom(*this))
                return made.value;
    const Ref<PluginData> settled(new SettledData(m_dataType));
    settled->m_kept = words();
    return settled;
}

Expected<std::string> PluginData::words() const
{
    return m_kept ? *m_kept : write();
}

Outcome PluginData::read(const std::vector<ScriptRunner::Result>& values)
{
    if (m_kept)
        return {Reason::doesNotExist, "No plug-in knows data of type '" + m_dataType->name + "'"};
    return take(values);
}

void PluginData::settle()
{
    if (!m_kept)
        m_kept = write();
    dropObject();
}

PluginDataTypes::~PluginDataTypes()
{
    while (!m_types.empty())
        remove(*m_types.back());
}

Outcome PluginDataTypes::add(PluginDataType type)
{
    if (type.name.empty() || find(type.name) || find(type.id))
        return {Reason::nameTaken, "A type of data '" + type.name + "' is registered"};
    m_types.push_back(std::make_shared<PluginDataType>(std::move(type)));
    return {};
}

std::shared_ptr<PluginDataType> PluginDataTypes::find(const std::string& name) const
{
    const auto found =
        std::find_if(m_types.begin(), m_types.end(), [&](const auto& type) { return type->name == name; });
    return found == m_types.end() ? nullptr : *found;
}

std::shared_ptr<PluginDataType> PluginDataTypes::find(std::uint32_t id) const
{
    const auto found =
        std::find_if(m_types.begin(), m_types.end(), [&](const auto& type) { return type->id == id; });
    return found == m_types.end() ? nullptr : *found;
}

std::vector<std::shared_ptr<PluginDataType>> PluginDataTypes::ofPlugin(const std::string& plugin) const
{
    std::vector<std::shared_ptr<PluginDataType>> all;
    std::copy_if(m_types.begin(), m_types.end(), std::back_inserter(all),
                 [&](const auto& type) { return type->plugin == plugin; });
    return all;
}

void PluginDataTypes::remove(const PluginDataType& type)
{
    const auto found =
        std::find_if(m_types.begin(), m_types.end(), [&](const auto& each) { return each.get() == &type; });
    if (found == m_types.end())
        return;
    const std::shared_ptr<PluginDataType> gone = *found;
    m_types.erase(found);
    // What one of them holds may go with it.
    const std::vector<Ref<PluginData>> left(gone->instances.begin(), gone->instances.end());
    for (const Ref<PluginData>& data : left)
        data->settle();
    gone->make = nullptr;
}

void PluginDataTypes::renamePlugin(const std::string& before, const std::string& after)
{
    for (const auto& type : ofPlugin(before))
        type->plugin = after;
}

bool takesPluginData(const Attribute& attribute, const std::string& name)
{
    if (attribute.kind == AttributeKind::typed)
        return attribute.dataType == DataType::plugin &&
               (attribute.pluginDataType.empty() || attribute.pluginDataType == name);
    if (attribute.kind != AttributeKind::generic)
        return false;
    const auto& names = attribute.acceptedPluginData;
    const auto& types = attribute.acceptedData;
    return (names.empty() && types.empty()) || std::find(names.begin(), names.end(), name) != names.end() ||
           std::find(types.begin(), types.end(), DataType::plugin) != types.end();
}

bool hasDataInUse(const PluginDataType& type, const TypeTable& types)
{
    std::unordered_set<const Data*> defaults;
    for (const NodeType* nodeType : types.ofPlugin(type.plugin))
        for (const Ref<Attribute>& attribute : nodeType->attributes())
            collectDefaults(*attribute, defaults);
    return std::any_of(type.instances.begin(), type.instances.end(),
                       [&](const PluginData* data) { return defaults.count(data) == 0; });
}

Expected<Ref<PluginData>> makePluginData(const std::shared_ptr<PluginDataType>& type)
{
    Ref<PluginData> made = type->make ? type->make(type) : Ref<PluginData>();
    if (!made)
        return {Reason::failed, "Cannot make data of type '" + type->name + "'"};
    return made;
}

} // namespace tvxhost::engine
