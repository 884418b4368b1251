// MString: text in UTF-8.
#include <maya/MString.h>
#include <maya/MStringArray.h>

#include "support/numberText.h"
#include "support/status.h"
#include "support/utf8.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <ostream>

using namespace tvxhost::api;

namespace {

std::string textOf(const char* text)
{
    return text ? std::string(text) : std::string();
}

/// The first `length` bytes, or fewer when the text ends before.
std::string textOf(const char* text, int length)
{
    if (!text || length <= 0)
        return {};
    return std::string(text, std::find(text, text + length, '\0'));
}

std::wstring wideOf(const wchar_t* text, int length)
{
    if (!text || length <= 0)
        return {};
    return std::wstring(text, std::find(text, text + length, L'\0'));
}

std::string utf8Of(const wchar_t* text)
{
    return text ? toUtf8(text) : std::string();
}

int positionOf(std::size_t found)
{
    return found == std::string::npos ? -1 : static_cast<int>(found);
}

/// A byte as a character of its own; only ASCII bytes are.
wchar_t wideOf(char c)
{
    return static_cast<wchar_t>(static_cast<unsigned char>(c));
}

template <class Text>
Text part(const Text& text, int start, int end)
{
    if (start < 0 || end < start || static_cast<std::size_t>(start) >= text.size())
        return {};
    return text.substr(static_cast<std::size_t>(start), static_cast<std::size_t>(end - start) + 1);
}

/// Splits, leaving empty parts out.
template <class Text, class Add>
void forEachPart(const Text& text, typename Text::value_type separator, Add add)
{
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t end = std::min(text.find(separator, start), text.size());
        if (end > start)
            add(text.substr(start, end - start));
        start = end + 1;
    }
}

char* changeCase(char* text, int (*change)(int))
{
    for (char* c = text; *c; ++c)
        if (static_cast<unsigned char>(*c) < 0x80)
            *c = static_cast<char>(change(*c));
    return text;
}

bool isNameCharacter(char c)
{
    return std::isalnum(static_cast<unsigned char>(c)) || c == '_';
}

/// The environment variable that a `$` at `dollar` names, and where the name's spelling ends; an empty name
/// when no name follows.
std::pair<std::string, std::size_t> variableAt(const std::string& text, std::size_t dollar)
{
    const bool braced = dollar + 1 < text.size() && text[dollar + 1] == '{';
    const std::size_t start = dollar + (braced ? 2 : 1);
    std::size_t end = start;
    while (end < text.size() && isNameCharacter(text[end]))
        ++end;
    if (braced && (end == text.size() || text[end] != '}'))
        return {{}, start};
    return {text.substr(start, end - start), braced ? end + 1 : end};
}

std::string environment(const std::string& name)
{
    return textOf(std::getenv(name.c_str()));
}

std::string withVariables(const std::string& text)
{
    std::string result;
    for (std::size_t i = 0; i < text.size();) {
        const auto [name, end] = text[i] == '$' ? variableAt(text, i) : std::pair<std::string, std::size_t>();
        if (name.empty()) {
            result += text[i++];
            continue;
        }
        result += environment(name);
        i = end;
    }
    return result;
}

std::string withHome(const std::string& text)
{
    const bool isHome = !text.empty() && text[0] == '~' && (text.size() == 1 || text[1] == '/');
    return isHome ? environment("HOME") + text.substr(1) : text;
}

/// The number of the placeholder "^Ns" at a circumflex, and its length; 0 for none.
std::pair<std::size_t, std::size_t> placeholderAt(const std::string& text, std::size_t circumflex)
{
    std::size_t number = 0;
    std::size_t i = circumflex + 1;
    for (; i < text.size() && i < circumflex + 3 && std::isdigit(static_cast<unsigned char>(text[i])); ++i)
        number = number * 10 + static_cast<std::size_t>(text[i] - '0');
    const bool complete = number > 0 && i < text.size() && text[i] == 's';
    return {complete ? number : 0, i + 1 - circumflex};
}

std::string formatted(const std::string& pattern, const MString* const arguments[], std::size_t count)
{
    std::string result;
    for (std::size_t i = 0; i < pattern.size();) {
        if (pattern.compare(i, 2, "^^") == 0) {
            result += '^';
            i += 2;
            continue;
        }
        const auto [number, length] =
            pattern[i] == '^' ? placeholderAt(pattern, i) : std::pair<std::size_t, std::size_t>();
        if (number == 0) {
            result += pattern[i++];
            continue;
        }
        if (number <= count)
            result += arguments[number - 1]->asChar();
        i += length;
    }
    return result;
}

/// Where asWChar's characters live: a string has no room for a second form of itself. The last 64 that a
/// thread asked for stay.
const std::wstring& keep(std::wstring text)
{
    thread_local std::wstring kept[64];
    thread_local unsigned int next = 0;
    std::wstring& slot = kept[next++ % 64];
    slot = std::move(text);
    return slot;
}

} // namespace

const MString MString::argUnused;

MString::MString() : chars(nullptr), reserved(nullptr) {}

MString::MString(const char* charString) : MString()
{
    set(charString);
}

MString::MString(const wchar_t* charString) : MString()
{
    setWChar(charString);
}

MString::MString(const char* charString, int charLength) : MString()
{
    set(charString, charLength);
}

MString::MString(const wchar_t* charString, int wcharLength) : MString()
{
    setWChar(charString, wcharLength);
}

MString::MString(const MString& other) : MString()
{
    *this = other;
}

MString::~MString()
{
    delete chars;
}

MString& MString::operator=(const MString& other)
{
    if (!other.chars)
        clear();
    else if (chars)
        *chars = *other.chars;
    else
        chars = new std::string(*other.chars);
    return *this;
}

MString& MString::operator=(const char* other)
{
    set(other);
    return *this;
}

MString& MString::operator=(double value)
{
    set(value);
    return *this;
}

MString& MString::operator+=(const MString& other)
{
    return *this += other.asChar();
}

MString& MString::operator+=(const char* other)
{
    if (!chars)
        set(other);
    else if (other)
        chars->append(other);
    return *this;
}

MString& MString::operator+=(double other)
{
    return *this += numberText(other).c_str();
}

MString& MString::operator+=(int other)
{
    return *this += std::to_string(other).c_str();
}

MString& MString::operator+=(unsigned int other)
{
    return *this += std::to_string(other).c_str();
}

MString& MString::operator+=(float other)
{
    return *this += static_cast<double>(other);
}

bool MString::operator==(const MString& other) const
{
    return *this == other.asChar();
}

bool MString::operator==(const char* other) const
{
    return std::strcmp(asChar(), other ? other : "") == 0;
}

bool MString::operator!=(const MString& other) const
{
    return !(*this == other);
}

bool MString::operator!=(const char* other) const
{
    return !(*this == other);
}

MString MString::operator+(const MString& other) const
{
    return MString(*this) += other;
}

MString MString::operator+(const char* other) const
{
    return MString(*this) += other;
}

MString MString::operator+(double value) const
{
    return MString(*this) += value;
}

MStatus MString::set(const char* charString)
{
    return setUTF8(charString);
}

MStatus MString::set(const char* charString, int charLength)
{
    std::string text = textOf(charString, charLength);
    if (chars)
        *chars = std::move(text);
    else if (!text.empty())
        chars = new std::string(std::move(text));
    return MS::kSuccess;
}

MStatus MString::set(double value)
{
    return set(numberText(value).c_str());
}

MStatus MString::set(double value, int precision)
{
    return set(fixedNumberText(value, precision).c_str());
}

MStatus MString::setUTF8(const char* utf8String)
{
    const std::string text = textOf(utf8String);
    return set(text.data(), static_cast<int>(text.size()));
}

MStatus MString::setWChar(const wchar_t* wcharString)
{
    return set(utf8Of(wcharString).c_str());
}

MStatus MString::setWChar(const wchar_t* wcharString, int wcharLength)
{
    return set(toUtf8(wideOf(wcharString, wcharLength)).c_str());
}

const char* MString::asChar() const
{
    return chars ? chars->c_str() : "";
}

const char* MString::asChar(int& charLength) const
{
    charLength = static_cast<int>(length());
    return asChar();
}

const char* MString::asUTF8() const
{
    return asChar();
}

const char* MString::asUTF8(int& utf8Length) const
{
    return asChar(utf8Length);
}

const wchar_t* MString::asWChar() const
{
    return keep(toWide(asChar())).c_str();
}

const wchar_t* MString::asWChar(int& numberOfChars) const
{
    numberOfChars = static_cast<int>(numChars());
    return asWChar();
}

unsigned int MString::length() const
{
    return chars ? static_cast<unsigned int>(chars->size()) : 0;
}

unsigned int MString::numChars() const
{
    return static_cast<unsigned int>(toWide(asChar()).size());
}

void MString::clear()
{
    if (chars)
        chars->clear();
}

int MString::index(char c) const
{
    return positionOf(textOf(asChar()).find(c));
}

int MString::indexW(char c) const
{
    return indexW(wideOf(c));
}

int MString::indexW(wchar_t c) const
{
    return positionOf(toWide(asChar()).find(c));
}

int MString::indexW(const MString& text) const
{
    return positionOf(toWide(asChar()).find(toWide(text.asChar())));
}

int MString::rindex(char c) const
{
    return positionOf(textOf(asChar()).rfind(c));
}

int MString::rindexW(char c) const
{
    return rindexW(wideOf(c));
}

int MString::rindexW(wchar_t c) const
{
    return positionOf(toWide(asChar()).rfind(c));
}

int MString::rindexW(const MString& text) const
{
    return positionOf(toWide(asChar()).rfind(toWide(text.asChar())));
}

MStatus MString::split(char separator, MStringArray& parts) const
{
    if (length() == 0)
        return failure(StatusText::unexpectedFailure);
    MStringArray found;
    forEachPart(textOf(asChar()), separator, [&](const std::string& p) { found.append(p.c_str()); });
    parts = found;
    return MS::kSuccess;
}

MStatus MString::split(wchar_t separator, MStringArray& parts) const
{
    if (length() == 0)
        return failure(StatusText::unexpectedFailure);
    MStringArray found;
    forEachPart(toWide(asChar()), separator, [&](const std::wstring& p) { found.append(p.c_str()); });
    parts = found;
    return MS::kSuccess;
}

MString MString::substring(int start, int end) const
{
    return MString(part(textOf(asChar()), start, end).c_str());
}

MString MString::substringW(int start, int end) const
{
    return MString(part(toWide(asChar()), start, end).c_str());
}

MString& MString::toUpperCase()
{
    if (chars)
        changeCase(chars->data(), std::toupper);
    return *this;
}

MString& MString::toLowerCase()
{
    if (chars)
        changeCase(chars->data(), std::tolower);
    return *this;
}

bool MString::isShort() const
{
    return isWholeNumber<short>(asChar());
}

short MString::asShort() const
{
    return leadingNumber<short>(asChar());
}

bool MString::isInt() const
{
    return isWholeNumber<int>(asChar());
}

int MString::asInt() const
{
    return leadingNumber<int>(asChar());
}

bool MString::isUnsigned() const
{
    return isWholeNumber<unsigned int>(asChar());
}

unsigned int MString::asUnsigned() const
{
    return leadingNumber<unsigned int>(asChar());
}

bool MString::isFloat() const
{
    return isWholeNumber<float>(asChar());
}

float MString::asFloat() const
{
    return leadingNumber<float>(asChar());
}

bool MString::isDouble() const
{
    return isWholeNumber<double>(asChar());
}

double MString::asDouble() const
{
    return leadingNumber<double>(asChar());
}

MString MString::expandEnvironmentVariablesAndTilde(MStatus* ReturnStatus) const
{
    giveSuccess(ReturnStatus);
    return MString(withHome(withVariables(asChar())).c_str());
}

MString MString::expandFilePath(MStatus* ReturnStatus) const
{
    const MString expanded = expandEnvironmentVariablesAndTilde(ReturnStatus);
    std::error_code error;
    const auto path = std::filesystem::absolute(expanded.asChar(), error);
    if (error) {
        give(ReturnStatus, failure(StatusText::unexpectedFailure));
        return expanded;
    }
    return MString(path.lexically_normal().c_str());
}

MStatus MString::format(const MString& fmt, const MStringArray& args)
{
    std::vector<MString> values;
    for (unsigned int i = 0; i < args.length(); ++i)
        values.push_back(args[i]);
    std::vector<const MString*> pointers;
    for (const MString& value : values)
        pointers.push_back(&value);
    return set(formatted(fmt.asChar(), pointers.data(), pointers.size()).c_str());
}

MStatus MString::format(const MString& fmt, const MString& arg1, const MString& arg2, const MString& arg3,
                        const MString& arg4, const MString& arg5, const MString& arg6, const MString& arg7,
                        const MString& arg8, const MString& arg9, const MString& arg10)
{
    const MString* const arguments[] = {&arg1, &arg2, &arg3, &arg4, &arg5,
                                        &arg6, &arg7, &arg8, &arg9, &arg10};
    return set(formatted(fmt.asChar(), arguments, 10).c_str());
}

MStatus MString::substitute(const MString& src, const MString& target)
{
    std::string text = asChar();
    const std::string from = src.asChar();
    const std::string to = target.asChar();
    if (from.empty())
        return failure(MS::kInvalidParameter, StatusText::unexpectedFailure);
    for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
        text.replace(at, from.size(), to);
    return set(text.c_str());
}

MStatus MString::substituteFirst(const MString& src, const MString& target)
{
    std::string text = asChar();
    const std::size_t at = text.find(src.asChar());
    if (src.length() == 0)
        return failure(MS::kInvalidParameter, StatusText::unexpectedFailure);
    if (at != std::string::npos)
        text.replace(at, src.length(), target.asChar());
    return set(text.c_str());
}

MString operator+(const char* text, const MString& string)
{
    return MString(text) += string;
}

std::ostream& operator<<(std::ostream& out, const MString& string)
{
    return out << string.asChar();
}
