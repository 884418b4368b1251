// The exception that the core library throws.
#pragma once

#include <tvxCore/Export.h>

#include <exception>
#include <string>

namespace tarvox::core {

/// An error of the core library, told in one text.
class TVX_CORE_API Exception : public std::exception
{
public:
    explicit Exception(const std::string& message);
    ~Exception() override;
    Exception(const Exception&);
    Exception& operator=(const Exception&);

    /// The text given at construction; valid as long as the exception.
    const char* what() const noexcept override;

private:
    std::string m_message;
};

} // namespace tarvox::core
