// The walk along a format.
#include "core/log/tvxMessageFormat.h"

#include "core/log/tvxNumberText.h"

namespace tarvox::crowd {

namespace {

class FormatWalk
{
public:
    FormatWalk(TextBuffer& text, const char* format, std::va_list arguments,
               const UnknownConversion& onUnknown)
        : m_text(text), m_next(format), m_onUnknown(onUnknown)
    {
        va_copy(m_arguments, arguments);
    }

    ~FormatWalk() { va_end(m_arguments); }

    FormatWalk(const FormatWalk&) = delete;
    FormatWalk& operator=(const FormatWalk&) = delete;

    void run()
    {
        while (const char character = take())
            if (character != '%')
                m_text.append(character);
            else if (const char conversion = take())
                convert(conversion);
    }

private:
    // The next character, or 0 at the end, which is never passed.
    char take() { return *m_next ? *m_next++ : '\0'; }

    void convert(char conversion)
    {
        switch (conversion) {
        case '%':
            m_text.append('%');
            break;
        case 'c':
            m_text.append(static_cast<char>(va_arg(m_arguments, int)));
            break;
        case 'd':
        case 'i':
            appendDecimal(m_text, static_cast<long>(va_arg(m_arguments, int)));
            break;
        case 'u':
            appendDecimal(m_text, va_arg(m_arguments, unsigned int));
            break;
        case 'f':
            appendFloating(m_text, static_cast<float>(va_arg(m_arguments, double)));
            break;
        case 's':
            appendString(va_arg(m_arguments, const char*));
            break;
        case 'p':
            appendPointer(m_text, va_arg(m_arguments, const void*));
            break;
        case 'l':
            if (const char longConversion = take())
                convertLong(longConversion);
            break;
        default:
            m_onUnknown(false, conversion);
            break;
        }
    }

    void convertLong(char conversion)
    {
        switch (conversion) {
        case 'd':
        case 'i':
            appendDecimal(m_text, va_arg(m_arguments, long));
            break;
        case 'f':
            appendFloating(m_text, va_arg(m_arguments, double));
            break;
        default:
            m_onUnknown(true, conversion);
            break;
        }
    }

    void appendString(const char* string) { m_text.append(string ? string : "(null)"); }

    TextBuffer& m_text;
    const char* m_next;
    std::va_list m_arguments;
    const UnknownConversion& m_onUnknown;
};

} // namespace

void appendFormatted(TextBuffer& text, const char* format, std::va_list arguments,
                     const UnknownConversion& onUnknown)
{
    FormatWalk(text, format, arguments, onUnknown).run();
}

} // namespace tarvox::crowd
