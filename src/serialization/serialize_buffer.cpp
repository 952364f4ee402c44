#include <quor/serialization/serialize_buffer.hpp>

namespace QUOR_2_9::serialization {

serialize_buffer::~serialize_buffer() = default;

// The derived class tells what assigning to itself does.
// NOLINTNEXTLINE(bugprone-unhandled-self-assignment,cert-oop54-cpp)
serialize_buffer &serialize_buffer::operator=(serialize_buffer const &other) {
	return assign(other);
}

serialize_buffer &serialize_buffer::operator=(std::string const &bytes) {
	return assign(bytes);
}

} // namespace QUOR_2_9::serialization
