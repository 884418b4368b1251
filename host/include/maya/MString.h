// MString: text.
#pragma once

#include <maya/MIOStream.h>
#include <maya/MStatus.h>
#include <maya/MTypes.h>

#include <string>

class MStringArray;

/// Text, held as UTF-8. Positions and lengths of the plain functions count bytes, those of the functions
/// ending in W (and numChars) count characters.
class OPENMAYA_EXPORT MString
{
public:
    /// Empty text.
    MString();

    /// A copy of the text up to its end, or of so many bytes or characters; a null pointer makes an empty
    /// text.
    MString(const char* charString);
    MString(const wchar_t* charString);
    MString(const char* charString, int charLength);
    MString(const wchar_t* charString, int wcharLength);
    MString(const MString& other);
    ~MString();

    MString& operator=(const MString& other);
    MString& operator=(const char* other);
    MString& operator=(double value);

    /// Appends; numbers are written with six significant digits.
    MString& operator+=(const MString& other);
    MString& operator+=(const char* other);
    MString& operator+=(double other);
    MString& operator+=(int other);
    MString& operator+=(unsigned int other);
    MString& operator+=(float other);

    /// Byte by byte.
    bool operator==(const MString& other) const;
    bool operator==(const char* other) const;
    bool operator!=(const MString& other) const;
    bool operator!=(const char* other) const;

    MString operator+(const MString& other) const;
    MString operator+(const char* other) const;
    MString operator+(double value) const;

    /// Takes over text, or a number as text (with the given number of decimals). A null pointer makes an
    /// empty text.
    MStatus set(const char* charString);
    MStatus set(const char* charString, int charLength);
    MStatus set(double value);
    MStatus set(double value, int precision);

    /// Takes over text in UTF-8, or in wide characters.
    MStatus setUTF8(const char* utf8String);
    MStatus setWChar(const wchar_t* wcharString);
    MStatus setWChar(const wchar_t* wcharString, int wcharLength);

    /// The text, or its length too. Valid until the string changes or goes.
    const char* asChar() const;
    const char* asChar(int& charLength) const;
    const char* asUTF8() const;
    const char* asUTF8(int& utf8Length) const;
    const wchar_t* asWChar() const;
    const wchar_t* asWChar(int& numChars) const;

    /// Length in bytes.
    unsigned int length() const;

    /// Length in characters.
    unsigned int numChars() const;

    void clear();

    /// Position of the first or last occurrence, -1 when there is none.
    int index(char) const;
    int indexW(char) const;
    int indexW(wchar_t) const;
    int indexW(const MString& other) const;
    int rindex(char) const;
    int rindexW(char) const;
    int rindexW(wchar_t) const;
    int rindexW(const MString& other) const;

    /// Splits at each occurrence of a character; empty parts are left out. kFailure for an empty text.
    MStatus split(char, MStringArray&) const;
    MStatus split(wchar_t, MStringArray&) const;

    /// The part from `start` to `end`, both included, counted from 0; empty when the positions make no sense.
    MString substring(int start, int end) const;
    MString substringW(int start, int end) const;

    /// Changes this text in place, ASCII letters only.
    MString& toUpperCase();
    MString& toLowerCase();

    /// Whether the whole text is a number of that kind, and the number; a text that is none gives the number
    /// at its beginning, or 0.
    bool isShort() const;
    short asShort() const;
    bool isInt() const;
    int asInt() const;
    bool isUnsigned() const;
    unsigned int asUnsigned() const;
    bool isFloat() const;
    float asFloat() const;
    bool isDouble() const;
    double asDouble() const;

    /// The text with `$NAME`, `${NAME}` and a leading `~` replaced.
    MString expandEnvironmentVariablesAndTilde(MStatus* ReturnStatus = nullptr) const;

    /// The same, made an absolute path.
    MString expandFilePath(MStatus* ReturnStatus = nullptr) const;

    /// Sets this text to `fmt`, in which `^1s` to `^10s` stand for the arguments and `^^` for a circumflex.
    MStatus format(const MString& fmt, const MStringArray& args);
    MStatus format(const MString& fmt, const MString& arg1 = argUnused, const MString& arg2 = argUnused,
                   const MString& arg3 = argUnused, const MString& arg4 = argUnused,
                   const MString& arg5 = argUnused, const MString& arg6 = argUnused,
                   const MString& arg7 = argUnused, const MString& arg8 = argUnused,
                   const MString& arg9 = argUnused, const MString& arg10 = argUnused);

    /// Replaces every occurrence, or the first.
    MStatus substitute(const MString& src, const MString& target);
    MStatus substituteFirst(const MString& src, const MString& target);

private:
    friend class tvxAccess;

    /// Stands for an argument of format() that is not given.
    static const MString argUnused;

    std::string* chars; ///< owned; may be null while the text is empty
    void* reserved;
};

/// The text followed by the string.
OPENMAYA_EXPORT MString operator+(const char* text, const MString& string);

OPENMAYA_EXPORT std::ostream& operator<<(std::ostream& out, const MString& string);
