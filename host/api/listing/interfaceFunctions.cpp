// The functions of the interface that the host offers, and which of them can be told to fail.
#include "interfaceFunctions.h"

#include "interfaceTable.h"

#include <map>

namespace tvxhost::api {

std::vector<DeclaredFunction> declaredFunctions()
{
    std::vector<DeclaredFunction> all;
    for (const FunctionRow* row = kFunctionRows; row->name; ++row)
        all.push_back({row->name, row->parameters, row->returnsStatus, row->takesStatus, row->isInline});
    return all;
}

std::vector<ReasonNotToFail> reasonsNotToFail()
{
    std::vector<ReasonNotToFail> all;
    for (const ReasonRow* row = kReasonRows; row->function; ++row)
        all.push_back({row->function, row->reason});
    return all;
}

std::vector<InterfaceFunction> interfaceFunctions()
{
    std::map<std::string, std::optional<std::string>> byName;
    for (const DeclaredFunction& function : declaredFunctions()) {
        const char* whyNot = !function.returnsStatus && !function.takesStatus ? "gives no status"
                             : function.isInline                              ? "is inline"
                                                                              : nullptr;
        auto& known =
            byName.try_emplace(function.name, whyNot ? std::optional<std::string>(whyNot) : std::nullopt)
                .first->second;
        if (!whyNot)
            known.reset();
    }
    for (const ReasonNotToFail& row : reasonsNotToFail())
        if (const auto found = byName.find(row.function); found != byName.end())
            found->second = row.reason;
    std::vector<InterfaceFunction> functions;
    for (auto& [name, whyNot] : byName)
        functions.push_back({name, std::move(whyNot)});
    return functions;
}

} // namespace tvxhost::api
