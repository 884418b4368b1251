// The functions that the API's libraries export: from the tables by which programs are linked with them.
#include "librarySymbols.h"

#include <cxxabi.h>
#include <dlfcn.h>
#include <elf.h>
#include <link.h>

#include <cstdlib>
#include <cstring>
#include <memory>
#include <optional>

namespace tvxhost::api::test {

namespace {

constexpr const char* kLibraries[] = {"libFoundation.so", "libOpenMaya.so", "libOpenMayaUI.so",
                                      "libOpenMayaFX.so", "libOpenMayaAnim.so"};

std::optional<std::string> demangled(const char* symbol)
{
    int status = 0;
    const std::unique_ptr<char, decltype(&std::free)> text(
        abi::__cxa_demangle(symbol, nullptr, nullptr, &status), &std::free);
    return status == 0 ? std::optional<std::string>(text.get()) : std::nullopt;
}

unsigned int countOf(const std::string& parameters)
{
    if (parameters.empty())
        return 0;
    unsigned int count = 1;
    int depth = 0;
    for (const char c : parameters) {
        depth += c == '(' || c == '<' ? 1 : c == ')' || c == '>' ? -1 : 0;
        count += c == ',' && depth == 0 ? 1 : 0;
    }
    return count;
}

/// A member of a class of the API; none for anything else.
std::optional<LibraryFunction> memberOf(const std::string& signature, void* address)
{
    const std::size_t colons = signature.find("::");
    const std::size_t asCall = signature.find("operator()(");
    const std::size_t open = asCall != std::string::npos ? asCall + 10 : signature.find('(');
    const bool isMember = signature.size() > 1 && signature[0] == 'M' && colons != std::string::npos &&
                          open != std::string::npos && colons < open && signature.find(' ') > colons &&
                          signature.substr(0, open).find("[abi") == std::string::npos;
    if (!isMember)
        return std::nullopt;
    const std::size_t close = signature.rfind(')');
    const std::string parameters = signature.substr(open + 1, close - open - 1);
    return LibraryFunction{signature.substr(0, open), signature, countOf(parameters),
                           parameters.find("MStatus*") != std::string::npos, address};
}

/// The dynamic section's address of a table.
template <class Table>
const Table* tableAt(const link_map& library, ElfW(Sxword) tag)
{
    for (const ElfW(Dyn)* entry = library.l_ld; entry->d_tag != DT_NULL; ++entry)
        if (entry->d_tag == tag)
            return reinterpret_cast<const Table*>(entry->d_un.d_ptr);
    return nullptr;
}

/// How many symbols there are, by the table by which they are looked up.
std::size_t symbolCount(const link_map& library)
{
    const auto* hash = tableAt<std::uint32_t>(library, DT_GNU_HASH);
    if (!hash)
        return 0;
    const std::uint32_t buckets = hash[0];
    const std::uint32_t firstSymbol = hash[1];
    const std::uint32_t bloomWords = hash[2];
    const std::uint32_t* bucket = hash + 4 + bloomWords * (sizeof(ElfW(Addr)) / sizeof(std::uint32_t));
    const std::uint32_t* chain = bucket + buckets;
    std::uint32_t last = 0;
    for (std::uint32_t i = 0; i < buckets; ++i)
        last = std::max(last, bucket[i]);
    if (last < firstSymbol)
        return firstSymbol;
    while ((chain[last - firstSymbol] & 1) == 0)
        ++last;
    return last + 1;
}

void collect(const link_map& library, std::vector<LibraryFunction>& functions)
{
    const auto* symbols = tableAt<ElfW(Sym)>(library, DT_SYMTAB);
    const auto* names = tableAt<char>(library, DT_STRTAB);
    for (std::size_t i = 0; i < symbolCount(library); ++i) {
        const ElfW(Sym)& symbol = symbols[i];
        if (ELF64_ST_TYPE(symbol.st_info) != STT_FUNC || symbol.st_shndx == SHN_UNDEF)
            continue;
        const auto signature = demangled(names + symbol.st_name);
        if (!signature)
            continue;
        void* address = reinterpret_cast<void*>(library.l_addr + symbol.st_value);
        if (auto member = memberOf(*signature, address))
            functions.push_back(std::move(*member));
    }
}

} // namespace

std::vector<LibraryFunction> libraryFunctions()
{
    std::vector<LibraryFunction> functions;
    for (const char* name : kLibraries) {
        void* handle = dlopen(name, RTLD_NOW | RTLD_NOLOAD);
        link_map* library = nullptr;
        if (handle && dlinfo(handle, RTLD_DI_LINKMAP, &library) == 0)
            collect(*library, functions);
    }
    return functions;
}

} // namespace tvxhost::api::test
