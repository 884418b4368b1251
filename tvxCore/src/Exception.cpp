// The exception's virtual functions: in one library, so that it is caught by type across libraries.
#include <tvxCore/Exception.h>

namespace tarvox::core {

Exception::Exception(const std::string& message) : m_message(message) {}

Exception::~Exception() = default;

Exception::Exception(const Exception&) = default;

Exception& Exception::operator=(const Exception&) = default;

const char* Exception::what() const noexcept
{
    return m_message.c_str();
}

} // namespace tarvox::core
