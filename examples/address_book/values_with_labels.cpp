// The labeled format: values and groups with names.

#include <cstddef>
#include <stdexcept>

#include "formats.hpp"

namespace address_book {
namespace {

using quor::serialization::labeled_serialize_buffer;
using quor::serialization::serialize_text_buf;

// Labels come back in the order of their bytes, hence the leading zeros.
std::string numbered(std::size_t index) {
	std::string const digits = std::to_string(index + 1);
	return std::string(digits.size() < 4 ? 4 - digits.size() : 0, '0') + digits;
}

void store(place const &from, labeled_serialize_buffer &out) {
	out.add_value("street", from.street);
	out.add_value("town", from.town);
	// A value becomes text of ten digits; a text buffer as a value keeps all.
	serialize_text_buf position;
	position.append_double(from.latitude, 17);
	position.append_double(from.longitude, 17);
	position.append_float(from.height, 9);
	out.add_value("position", position.as_str());
}

place load_place(labeled_serialize_buffer const &in) {
	place to;
	to.street = in.retrieve_value("street").as_string();
	to.town = in.retrieve_value("town").as_string();
	serialize_text_buf const position(in.retrieve_value("position").as_string());
	to.latitude = position.read_double();
	to.longitude = position.read_double();
	to.height = position.read_float();
	return to;
}

void store(person const &from, labeled_serialize_buffer &out) {
	out.add_value("name", from.name);
	out.add_value("born", from.born);
	out.add_value("zone", from.zone);
	out.add_value("favourite", from.favourite);
	out.add_value("met", from.met);
	out.add_value("note", from.note);
	labeled_serialize_buffer *const phones = out.create_group("phones");
	for (std::size_t i = 0; i != from.phones.size(); ++i) {
		// One label can have a value and a group.
		phones->add_value(numbered(i), from.phones[i].number);
		phones->create_group(numbered(i))->add_value("kind", from.phones[i].kind);
	}
	if (from.home) {
		store(*from.home, *out.create_group("home"));
	}
}

// A label that an older program didn't write gives nil, which is 0 and the empty text; one that
// only a newer program writes isn't asked for.
person load_person(labeled_serialize_buffer const &in) {
	person to;
	to.name = in.retrieve_value("name").as_string();
	to.born = static_cast<short>(in.retrieve_value("born").as_int());
	to.zone = static_cast<signed char>(in.retrieve_value("zone").as_int());
	to.favourite = in.retrieve_value("favourite").as_bool();
	to.met = in.retrieve_value("met").as_int64();
	to.note = in.retrieve_value("note").as_string();
	if (labeled_serialize_buffer const *const phones = in.retrieve_group("phones")) {
		for (std::size_t i = 0; phones->has_label(numbered(i)); ++i) {
			to.phones.push_back({phones->retrieve_group(numbered(i))->retrieve_value("kind").as_string(),
			                     phones->retrieve_value(numbered(i)).as_string()});
		}
	}
	if (in.has_group("home")) {
		to.home = load_place(*in.retrieve_group("home"));
	}
	return to;
}

} // namespace

void store(book const &from, labeled_serialize_buffer &out) {
	out.add_value("version", current_version);
	out.add_value("count", static_cast<unsigned int>(from.size()));
	labeled_serialize_buffer *const people = out.create_group("people");
	for (std::size_t i = 0; i != from.size(); ++i) {
		store(from[i], *people->create_group(numbered(i)));
	}
}

// Reading never fails: damage gives fewer labels and shorter values. The version, whose label
// is the last, is there only if the text wasn't cut: nil and the empty text are 0.
book load_book(labeled_serialize_buffer const &in) {
	if (in.retrieve_value("version").as_int() < 1) {
		throw std::runtime_error("is no address book");
	}
	book to;
	if (labeled_serialize_buffer const *const people = in.retrieve_group("people")) {
		for (std::size_t i = 0; people->has_group(numbered(i)); ++i) {
			to.push_back(load_person(*people->retrieve_group(numbered(i))));
		}
	}
	// Version 1 had no count.
	if (in.has_value("count") && in.retrieve_value("count").as_uint64() != to.size()) {
		throw std::runtime_error("is damaged");
	}
	return to;
}

} // namespace address_book
