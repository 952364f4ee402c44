#include <quor/exceptions/runtime_error.hpp>

namespace QUOR_2_9::exceptions {

runtime_error::runtime_error(std::string const &message, unsigned int line, char const *file, char const *function)
    : exception(line, file, function), m_message(message) {}

runtime_error::runtime_error(std::string const &message, exception::state const &place)
    : exception(place), m_message(message) {}

runtime_error::runtime_error(runtime_error const &other) = default;
runtime_error &runtime_error::operator=(runtime_error const &other) = default;
runtime_error::~runtime_error() = default;

char const *runtime_error::get_message() const {
	return m_message.c_str();
}

overflow_error::overflow_error(std::string const &message, unsigned int line, char const *file, char const *function)
    : runtime_error(message, line, file, function) {}

overflow_error::overflow_error(std::string const &message, exception::state const &place)
    : runtime_error(message, place) {}

overflow_error::overflow_error(overflow_error const &other) = default;
overflow_error &overflow_error::operator=(overflow_error const &other) = default;
overflow_error::~overflow_error() = default;

underflow_error::underflow_error(std::string const &message, unsigned int line, char const *file, char const *function)
    : runtime_error(message, line, file, function) {}

underflow_error::underflow_error(std::string const &message, exception::state const &place)
    : runtime_error(message, place) {}

underflow_error::underflow_error(underflow_error const &other) = default;
underflow_error &underflow_error::operator=(underflow_error const &other) = default;
underflow_error::~underflow_error() = default;

} // namespace QUOR_2_9::exceptions
