// Buffers of values in order and records with labels, beside other serialization libraries.

#include <cstdint>
#include <string>

#include <quor/quor.hpp>

#include "frame/heap.hpp"
#include "serialization/competition.hpp"

namespace serialization_bench {
namespace {

using quor::serialization::labeled_serialize_buffer;
using quor::serialization::labeled_text_buffer;
using quor::serialization::serialize_binary_buf;
using quor::serialization::serialize_buffer;
using quor::serialization::serialize_text_buf;

// Through the interface, as a program does that leaves the choice of the format open.
template <class Buffer>
struct buffer_archive {
	using record_type = record;
	using bytes_type = std::string;

	class writer {
	public:
		void write(record const &one) {
			serialize_buffer &out = buffer;
			out.append_int8(one.a);
			out.append_int16(one.b);
			out.append_int32(one.c);
			out.append_int64(one.d);
			out.append_uint8(one.e);
			out.append_uint16(one.f);
			out.append_uint32(one.g);
			out.append_uint64(one.h);
			out.append_double(one.x, 17);
			out.append_double(one.y, 17);
			out.append_string(one.name);
			out.append_string(one.note);
		}
		std::string const &bytes() const { return buffer.as_str(); }

	private:
		Buffer buffer;
	};

	class reader {
	public:
		explicit reader(std::string const &bytes) : buffer(bytes) {}
		record read() {
			serialize_buffer const &in = buffer;
			return {in.read_int8(),   in.read_int16(),  in.read_int32(),  in.read_int64(),
			        in.read_uint8(),  in.read_uint16(), in.read_uint32(), in.read_uint64(),
			        in.read_double(), in.read_double(), in.read_string(), in.read_string()};
		}

	private:
		Buffer buffer;
	};
};

struct labeled_archive {
	using record_type = labeled_text_buffer;

	static labeled_text_buffer record_of(labels const &from) {
		labeled_text_buffer record;
		labeled_serialize_buffer &owner = *record.create_group("owner");
		owner.add_value("name", from.owner.name);
		owner.add_value("mail", from.owner.mail);
		owner.add_value("city", from.owner.city);
		owner.add_value("language", from.owner.language);
		owner.add_value("age", from.owner.age);
		owner.add_value("created", from.owner.created);
		owner.add_value("active", from.owner.active);
		labeled_serialize_buffer &screen = *record.create_group("screen");
		screen.add_value("width", from.screen.width);
		screen.add_value("height", from.screen.height);
		screen.add_value("scale", from.screen.scale);
		screen.add_value("gamma", from.screen.gamma);
		screen.add_value("theme", from.screen.theme);
		screen.add_value("font", from.screen.font);
		screen.add_value("full_screen", from.screen.full_screen);
		labeled_serialize_buffer &backup = *record.create_group("backup");
		backup.add_value("folder", from.backup.folder);
		backup.add_value("target", from.backup.target);
		backup.add_value("hour", from.backup.hour);
		backup.add_value("keep_days", from.backup.keep_days);
		backup.add_value("ratio", from.backup.ratio);
		backup.add_value("compress", from.backup.compress);
		return record;
	}

	static std::string render(labeled_text_buffer const &from) { return from.as_str(); }
	static labeled_text_buffer parse(std::string const &text) { return {text}; }

	static labels values_of(labeled_text_buffer const &record) {
		labeled_serialize_buffer const &owner = *record.retrieve_group("owner");
		labeled_serialize_buffer const &screen = *record.retrieve_group("screen");
		labeled_serialize_buffer const &backup = *record.retrieve_group("backup");
		return {{owner.retrieve_value("name").as_string(), owner.retrieve_value("mail").as_string(),
		         owner.retrieve_value("city").as_string(), owner.retrieve_value("language").as_string(),
		         owner.retrieve_value("age").as_int(), owner.retrieve_value("created").as_int64(),
		         owner.retrieve_value("active").as_bool()},
		        {screen.retrieve_value("width").as_int(), screen.retrieve_value("height").as_int(),
		         screen.retrieve_value("scale").as_double(), screen.retrieve_value("gamma").as_double(),
		         screen.retrieve_value("theme").as_string(), screen.retrieve_value("font").as_string(),
		         screen.retrieve_value("full_screen").as_bool()},
		        {backup.retrieve_value("folder").as_string(), backup.retrieve_value("target").as_string(),
		         backup.retrieve_value("hour").as_int(), backup.retrieve_value("keep_days").as_int(),
		         backup.retrieve_value("ratio").as_double(), backup.retrieve_value("compress").as_bool()}};
	}
};

// The limits of a kind hold for records in a row and alone; with long strings, whose time goes
// to the heap when they are read, the buffers shall be faster and the limit is an aim.
void limit(std::string const &kind, std::string const &peer, double most, double aim) {
	for (std::string const what :
	     {"write one of 256 records", "read one of 256 records", "write a record alone", "read a record alone"}) {
		bench::limit(kind + ", " + what, peer, most, aim);
		bench::limit(kind + ", " + what + " with long strings", peer, 1, most);
	}
}

// The calls for memory of as many appended numbers, and of reading them.
template <class Buffer>
void count_allocations(std::string const &kind) {
	constexpr int count = 100000;
	Buffer buffer;
	std::uint64_t const start = bench::heap_calls();
	for (int i = 0; i != count; ++i) {
		buffer.append_int32(i);
		buffer.append_double(i / 7.0, 17);
	}
	std::uint64_t const written = bench::heap_calls();
	for (int i = 0; i != count; ++i) {
		if (buffer.read_int32() != i || buffer.read_double() != i / 7.0) {
			bench::disagree("the numbers of a " + kind + " buffer");
		}
	}
	std::uint64_t const read = bench::heap_calls();
	std::string const name = kind + ", allocations of 200000 numbers ";
	bench::figure(name + "written", bench::library, static_cast<double>(written - start));
	bench::bound(name + "written", 20); // the buffer's own, which doubles
	bench::figure(name + "read", bench::library, static_cast<double>(read - written));
	bench::bound(name + "read", 0);
}

void describe() {
	compete<buffer_archive<serialize_binary_buf>>("binary", bench::library);
	compete<buffer_archive<serialize_text_buf>>("text", bench::library);
	compete_in_labels<labeled_archive>(bench::library);
	count_allocations<serialize_binary_buf>("binary");
	count_allocations<serialize_text_buf>("text");

	limit("binary", "cereal", 1.0 / 3, 1.0 / 4);
	limit("binary", "Boost.Serialization", 1.0 / 3, 1.0 / 4);
	limit("binary", "Boost.Serialization, bare", 1.0 / 2, 1.0 / 3);
	limit("binary", "QDataStream", 1.0 / 6, 1.0 / 8);
	limit("text", "Boost.Serialization", 1.0 / 2, 1.0 / 4);
	bench::limit(render_name, "cereal JSON", 1, 0.5);
	bench::limit(parse_name, "cereal JSON", 1, 0.5);
	bench::limit(values_to_text_name, "cereal JSON", 1.5, 1);
	bench::limit(text_to_values_name, "cereal JSON", 1, 0.5);
}

bench::entry const added(&describe);

} // namespace
} // namespace serialization_bench
