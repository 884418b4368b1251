// MFileObject: a file by its name, as it was given and as it is found.
#include <maya/MFileObject.h>

#include "support/access.h"
#include "support/apiCall.h"

#include <cstdlib>
#include <filesystem>
#include <sstream>

using namespace tvxhost::api;
namespace fs = std::filesystem;

/// What MFileObject holds.
struct tvxhost::api::FileObject
{
    std::string name;
    std::string path; ///< without a slash at the end; may be a list of folders
    std::string resolved;
    MFileObject::MFileResolveMethod method = MFileObject::kInputFile;
};

namespace {

/// Replaces "$NAME" and "${NAME}" by the variables of the environment; others stay as they are.
std::string expanded(const std::string& text)
{
    std::string result;
    for (std::size_t i = 0; i < text.size();) {
        const bool isBraced = text.compare(i, 2, "${") == 0;
        const std::size_t start = i + (isBraced ? 2 : 1);
        std::size_t end = start;
        while (end < text.size() && (std::isalnum(static_cast<unsigned char>(text[end])) || text[end] == '_'))
            ++end;
        const char* value = text[i] == '$' ? std::getenv(text.substr(start, end - start).c_str()) : nullptr;
        if (value && (!isBraced || (end < text.size() && text[end] == '}'))) {
            result += value;
            i = end + (isBraced ? 1 : 0);
        } else {
            result += text[i++];
        }
    }
    return result;
}

std::vector<std::string> foldersOf(const FileObject& file)
{
    std::vector<std::string> folders;
    std::istringstream list(expanded(file.path));
    for (std::string folder; std::getline(list, folder, ':');)
        folders.push_back(folder);
    return folders;
}

std::string joined(const std::string& folder, const std::string& name)
{
    return folder.empty() ? name : folder == "/" ? folder + name : folder + "/" + name;
}

bool isThere(const std::string& path)
{
    std::error_code ignored;
    return !path.empty() && fs::exists(path, ignored);
}

/// Where the file is found first; as expanded when it is nowhere.
std::string resolvedNameOf(const FileObject& file)
{
    if (!file.resolved.empty())
        return file.resolved;
    for (const std::string& folder : foldersOf(file))
        if (const std::string path = joined(folder, expanded(file.name)); isThere(path))
            return path;
    return joined(expanded(file.path), expanded(file.name));
}

std::string folderOf(const std::string& path)
{
    const std::size_t slash = path.rfind('/');
    return slash == std::string::npos ? std::string() : slash == 0 ? "/" : path.substr(0, slash);
}

std::string nameOf(const std::string& path)
{
    return path.substr(path.rfind('/') + 1);
}

} // namespace

MFileObject::MFileObject() : file(new FileObject) {}

MFileObject::MFileObject(const MFileObject& other) : file(new FileObject(*other.file)) {}

MFileObject::~MFileObject()
{
    delete file;
}

MFileObject& MFileObject::operator=(const MFileObject& other)
{
    *file = *other.file;
    return *this;
}

MStatus MFileObject::setRawName(const MString& fileName)
{
    TVX_API_CALL("MFileObject::setRawName");
    file->name = tvxAccess::text(fileName);
    return MS::kSuccess;
}

MStatus MFileObject::setRawPath(const MString& filePath)
{
    TVX_API_CALL("MFileObject::setRawPath");
    file->path = tvxAccess::text(filePath);
    if (file->path.size() > 1 && file->path.back() == '/')
        file->path.pop_back();
    return MS::kSuccess;
}

MStatus MFileObject::setRawFullName(const MString& fullFileName)
{
    TVX_API_CALL("MFileObject::setRawFullName");
    const std::string& whole = tvxAccess::text(fullFileName);
    file->name = nameOf(whole);
    file->path = folderOf(whole);
    return MS::kSuccess;
}

MStatus MFileObject::overrideResolvedFullName(const MString& fullFileName)
{
    TVX_API_CALL("MFileObject::overrideResolvedFullName");
    file->resolved = tvxAccess::text(fullFileName);
    return MS::kSuccess;
}

MString MFileObject::rawName() const
{
    return tvxAccess::string(file->name);
}

MString MFileObject::rawPath() const
{
    return tvxAccess::string(file->path);
}

MString MFileObject::rawFullName() const
{
    return tvxAccess::string(joined(file->path, file->name));
}

MString MFileObject::expandedPath() const
{
    return tvxAccess::string(expanded(file->path));
}

MString MFileObject::expandedFullName() const
{
    return tvxAccess::string(joined(expanded(file->path), expanded(file->name)));
}

MString MFileObject::resolvedName() const
{
    return tvxAccess::string(nameOf(resolvedNameOf(*file)));
}

MString MFileObject::resolvedPath() const
{
    return tvxAccess::string(folderOf(resolvedNameOf(*file)));
}

MString MFileObject::resolvedFullName() const
{
    return tvxAccess::string(resolvedNameOf(*file));
}

unsigned int MFileObject::pathCount()
{
    return static_cast<unsigned int>(foldersOf(*file).size());
}

MString MFileObject::ithPath(unsigned int index)
{
    const auto folders = foldersOf(*file);
    return index < folders.size() ? tvxAccess::string(folders[index]) : MString();
}

MString MFileObject::ithFullName(unsigned int index)
{
    const auto folders = foldersOf(*file);
    return index < folders.size() ? tvxAccess::string(joined(folders[index], expanded(file->name)))
                                  : MString();
}

bool MFileObject::exists()
{
    return isSet() && isThere(resolvedNameOf(*file));
}

bool MFileObject::exists(unsigned int index)
{
    return isSet() && isThere(tvxAccess::text(ithFullName(index)));
}

bool MFileObject::isSet() const
{
    return !file->name.empty();
}

void MFileObject::setResolveMethod(MFileResolveMethod method)
{
    file->method = method;
}

MFileObject::MFileResolveMethod MFileObject::resolveMethod() const
{
    return file->method;
}

MStatus MFileObject::setName(const MString& fileName)
{
    TVX_API_CALL("MFileObject::setName");
    return setRawName(fileName);
}

MStatus MFileObject::setFullName(const MString& fileName)
{
    TVX_API_CALL("MFileObject::setFullName");
    return setRawFullName(fileName);
}

MString MFileObject::name() const
{
    return resolvedName();
}

MString MFileObject::path() const
{
    return resolvedPath();
}

MString MFileObject::fullName() const
{
    return resolvedFullName();
}

bool MFileObject::isAbsolutePath(const MString& fileName)
{
    const std::string path = expanded(tvxAccess::text(fileName));
    return !path.empty() && path.front() == '/';
}

MString MFileObject::getResolvedFullName(const MString& rawFullName)
{
    bool isFound = false;
    return getResolvedFullName(rawFullName, isFound);
}

MString MFileObject::getResolvedFullName(const MString& rawFullName, bool& exists, MFileResolveMethod method)
{
    MFileObject file;
    file.setRawFullName(rawFullName);
    file.setResolveMethod(method);
    exists = file.exists();
    return file.resolvedFullName();
}
