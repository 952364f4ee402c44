#include <quor/exceptions/logic_error.hpp>

namespace QUOR_2_9::exceptions {

logic_error::logic_error(std::string const &message, unsigned int line, char const *file, char const *function)
    : exception(line, file, function), m_message(message) {}

logic_error::logic_error(std::string const &message, exception::state const &place)
    : exception(place), m_message(message) {}

logic_error::logic_error(logic_error const &other) = default;
logic_error &logic_error::operator=(logic_error const &other) = default;
logic_error::~logic_error() = default;

char const *logic_error::get_message() const {
	return m_message.c_str();
}

invalid_argument_value::invalid_argument_value(std::string const &message, unsigned int line, char const *file,
                                               char const *function)
    : logic_error(message, line, file, function) {}

invalid_argument_value::invalid_argument_value(std::string const &message, exception::state const &place)
    : logic_error(message, place) {}

invalid_argument_value::invalid_argument_value(invalid_argument_value const &other) = default;
invalid_argument_value &invalid_argument_value::operator=(invalid_argument_value const &other) = default;
invalid_argument_value::~invalid_argument_value() = default;

length_error::length_error(std::string const &message, unsigned int line, char const *file, char const *function)
    : logic_error(message, line, file, function) {}

length_error::length_error(std::string const &message, exception::state const &place) : logic_error(message, place) {}

length_error::length_error(length_error const &other) = default;
length_error &length_error::operator=(length_error const &other) = default;
length_error::~length_error() = default;

out_of_range::out_of_range(std::string const &message, unsigned int line, char const *file, char const *function)
    : logic_error(message, line, file, function) {}

out_of_range::out_of_range(std::string const &message, exception::state const &place) : logic_error(message, place) {}

out_of_range::out_of_range(out_of_range const &other) = default;
out_of_range &out_of_range::operator=(out_of_range const &other) = default;
out_of_range::~out_of_range() = default;

} // namespace QUOR_2_9::exceptions
