// The binary and the text format: values in a fixed order, one code for both.

#include <cstddef>
#include <stdexcept>

#include "formats.hpp"

namespace address_book {
namespace {

using quor::serialization::serialize_buffer;
using quor::types::uint32;
using buffer_pointer = quor::memory::pointers::rc_pointer<serialize_buffer>;

constexpr char const *closing = "end";

void store(place const &from, serialize_buffer &out) {
	out.append_string(from.street);
	out.append_string(from.town);
	out.append_double(from.latitude, 17); // digits; 17 keep all of a double, 9 all of a float
	out.append_double(from.longitude, 17);
	out.append_float(from.height, 9);
}

// What is read can't be more than what is there: with damaged lengths, text can be read
// again and again.
class allowance {
public:
	explicit allowance(serialize_buffer const &in) : left(in.as_str().size()) {}

	/// @throws std::runtime_error when bytes that were read aren't there.
	void take(std::size_t bytes) {
		if (bytes >= left) {
			throw std::runtime_error("is damaged");
		}
		left -= bytes + 1; // each field takes a byte beside its content
	}

private:
	std::size_t left;
};

place load_place(serialize_buffer const &in) {
	place to;
	to.street = in.read_string();
	to.town = in.read_string();
	to.latitude = in.read_double();
	to.longitude = in.read_double();
	to.height = in.read_float();
	return to;
}

void store(person const &from, serialize_buffer &out) {
	out.append_string(from.name);
	out.append_int16(from.born);
	out.append_int8(from.zone);
	out.append_uint8(from.favourite ? 1 : 0);
	out.append_int64(from.met);
	out.append_string(from.note);
	out.append_uint16(static_cast<unsigned short>(from.phones.size()));
	for (phone const &each : from.phones) {
		out.append_string(each.kind);
		out.append_string(each.number);
	}
	buffer_pointer const home(out.create()); // of the class of `out`; empty for nobody's home
	if (from.home) {
		store(*from.home, *home);
	}
	out.append_buffer(*home);
}

// What a newer program appended behind these values is left unread.
person load_person(serialize_buffer const &in) {
	person to;
	to.name = in.read_string();
	to.born = in.read_int16();
	to.zone = in.read_int8();
	to.favourite = in.read_uint8() != 0;
	to.met = in.read_int64();
	to.note = in.read_string();
	// The number is a promise: the loop ends where the data does.
	allowance allowed(in);
	for (unsigned int left = in.read_uint16(); left != 0 && !in.at_end(); --left) {
		phone one;
		one.kind = in.read_string();
		one.number = in.read_string();
		allowed.take(one.kind.size() + one.number.size());
		to.phones.push_back(one);
	}
	// At the end a binary buffer gives null for an empty one, a text buffer an empty one.
	buffer_pointer const home(in.read_buffer());
	if (home && !home->at_end()) {
		to.home = load_place(*home);
	}
	return to;
}

} // namespace

void store(book const &from, serialize_buffer &out) {
	out.append_uint16(current_version);
	out.append_uint32(static_cast<uint32>(from.size()));
	for (person const &each : from) {
		buffer_pointer const one(out.create());
		store(each, *one);
		out.append_buffer(*one);
	}
	out.append_string(closing);
}

// Reading never fails: damage gives zeros and empty strings. So the book says what it is at its
// start, and has something at its end that is there only if all before was.
book load_book(serialize_buffer const &in) {
	if (in.read_uint16() != current_version) {
		throw std::runtime_error("is no address book of this version");
	}
	book to;
	uint32 left = in.read_uint32();
	allowance allowed(in);
	for (; left != 0 && !in.at_end(); --left) {
		buffer_pointer const one(in.read_buffer());
		if (one) {
			allowed.take(one->as_str().size());
			to.push_back(load_person(*one));
		}
	}
	if (left != 0 || in.read_string() != closing || !in.at_end()) {
		throw std::runtime_error("is damaged");
	}
	return to;
}

} // namespace address_book
