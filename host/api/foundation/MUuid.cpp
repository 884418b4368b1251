// MUuid: the identity of a node across files.
#include <maya/MString.h>
#include <maya/MUuid.h>

#include "support/status.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cstdio>
#include <memory>
#include <random>
#include <string>

using namespace tvxhost::api;

namespace {

using Bytes = std::array<unsigned char, 16>;

constexpr std::array<std::size_t, 4> kDashes = {8, 13, 18, 23};
constexpr std::size_t kTextLength = 36;

bool isDash(std::size_t position)
{
    return std::find(kDashes.begin(), kDashes.end(), position) != kDashes.end();
}

bool isUuidText(const std::string& text)
{
    if (text.size() != kTextLength)
        return false;
    for (std::size_t i = 0; i < text.size(); ++i)
        if (isDash(i) ? text[i] != '-' : !std::isxdigit(static_cast<unsigned char>(text[i])))
            return false;
    return true;
}

Bytes bytesOf(std::string text)
{
    text.erase(std::remove(text.begin(), text.end(), '-'), text.end());
    Bytes bytes{};
    for (std::size_t i = 0; i < bytes.size(); ++i)
        bytes[i] = static_cast<unsigned char>(std::stoi(text.substr(2 * i, 2), nullptr, 16));
    return bytes;
}

Bytes bytesOf(const unsigned char* bytes)
{
    Bytes copy{};
    if (bytes)
        std::copy_n(bytes, copy.size(), copy.begin());
    return copy;
}

/// Random, with the marks of version 4.
Bytes randomBytes()
{
    static thread_local std::mt19937_64 generator{std::random_device{}()};
    std::uniform_int_distribution<int> byte(0, 255);
    Bytes bytes{};
    std::generate(bytes.begin(), bytes.end(), [&] { return static_cast<unsigned char>(byte(generator)); });
    bytes[6] = static_cast<unsigned char>((bytes[6] & 0x0F) | 0x40);
    bytes[8] = static_cast<unsigned char>((bytes[8] & 0x3F) | 0x80);
    return bytes;
}

/// Room for sixteen bytes with these in it, for an owner that deletes them.
unsigned char* owned(const Bytes& bytes)
{
    auto copy = std::make_unique<unsigned char[]>(bytes.size());
    std::copy(bytes.begin(), bytes.end(), copy.get());
    return copy.release();
}

} // namespace

MUuid::MUuid() : bytes(nullptr) {}

MUuid::MUuid(const MUuid& other) : bytes(other.bytes ? owned(bytesOf(other.bytes)) : nullptr) {}

MUuid::MUuid(const unsigned int* uuid) : bytes(nullptr)
{
    if (!uuid)
        return;
    Bytes parts{};
    for (std::size_t i = 0; i < parts.size(); ++i)
        parts[i] = static_cast<unsigned char>(uuid[i / 4] >> (24 - 8 * (i % 4)));
    bytes = owned(parts);
}

MUuid::MUuid(const unsigned char* uuid) : bytes(uuid ? owned(bytesOf(uuid)) : nullptr) {}

MUuid::MUuid(const MString& value, MStatus* ReturnStatus) : bytes(nullptr)
{
    if (!isUuidText(value.asChar())) {
        give(ReturnStatus, failure(MS::kInvalidParameter, StatusText::unexpectedFailure));
        return;
    }
    giveSuccess(ReturnStatus);
    bytes = owned(bytesOf(std::string(value.asChar())));
}

MUuid::~MUuid()
{
    delete[] bytes;
}

MUuid& MUuid::operator=(const MUuid& rhs)
{
    MUuid taken(rhs);
    std::swap(bytes, taken.bytes);
    return *this;
}

bool MUuid::operator==(const MUuid& rhs) const
{
    return bytesOf(bytes) == bytesOf(rhs.bytes);
}

bool MUuid::operator!=(const MUuid& rhs) const
{
    return !(*this == rhs);
}

MStatus MUuid::get(unsigned char* uuid) const
{
    if (!uuid)
        return failure(StatusText::nullArgument);
    const Bytes copy = bytesOf(bytes);
    std::copy(copy.begin(), copy.end(), uuid);
    return MS::kSuccess;
}

MString MUuid::asString() const
{
    std::string text;
    for (const unsigned char byte : bytesOf(bytes)) {
        char digits[3];
        std::snprintf(digits, sizeof digits, "%02X", byte);
        if (isDash(text.size()))
            text += '-';
        text += digits;
    }
    return MString(text.c_str());
}

MUuid::operator MString() const
{
    return asString();
}

void MUuid::copy(const MUuid& rhs)
{
    *this = rhs;
}

bool MUuid::valid() const
{
    return bytesOf(bytes) != Bytes{};
}

MStatus MUuid::generate()
{
    *this = MUuid(randomBytes().data());
    return MS::kSuccess;
}

const char* MUuid::className()
{
    return "MUuid";
}
