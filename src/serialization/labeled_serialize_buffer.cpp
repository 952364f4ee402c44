#include <quor/serialization/labeled_serialize_buffer.hpp>

namespace QUOR_2_9::serialization {

labeled_serialize_buffer::~labeled_serialize_buffer() = default;

// The derived class tells what assigning to itself does.
// NOLINTNEXTLINE(bugprone-unhandled-self-assignment,cert-oop54-cpp)
labeled_serialize_buffer &labeled_serialize_buffer::operator=(labeled_serialize_buffer const &other) {
	return assign(other);
}

labeled_serialize_buffer &labeled_serialize_buffer::operator=(std::string const &text) {
	return assign(text);
}

} // namespace QUOR_2_9::serialization
