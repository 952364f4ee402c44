// Boost.Serialization, as it is when nothing is said about a class, and bare: told to leave
// out the header of the archive, the information about classes, and the tracking of addresses.

#include <ostream>
#include <sstream>
#include <string>

#include <boost/archive/binary_iarchive.hpp>
#include <boost/archive/binary_oarchive.hpp>
#include <boost/archive/text_iarchive.hpp>
#include <boost/archive/text_oarchive.hpp>
#include <boost/serialization/level.hpp>
#include <boost/serialization/string.hpp>
#include <boost/serialization/tracking.hpp>

#include "serialization/competition.hpp"

namespace serialization_bench {
namespace {

/// A record of its own type, to be stored without anything beside its values.
struct bare_record : record {};

} // namespace
} // namespace serialization_bench

namespace boost::serialization {

template <class Archive>
void serialize(Archive &archive, serialization_bench::record &one, unsigned int /*version*/) {
	one.each([&archive](auto &field) { archive &field; });
}

template <class Archive>
void serialize(Archive &archive, serialization_bench::bare_record &one, unsigned int /*version*/) {
	one.each([&archive](auto &field) { archive &field; });
}

} // namespace boost::serialization

BOOST_CLASS_IMPLEMENTATION(serialization_bench::bare_record, boost::serialization::object_serializable)
BOOST_CLASS_TRACKING(serialization_bench::bare_record, boost::serialization::track_never)

namespace serialization_bench {
namespace {

template <class Output, class Input, class Stored, unsigned int Flags>
struct boost_archive {
	using record_type = Stored;
	using bytes_type = std::string;

	class writer {
	public:
		void write(Stored const &one) { archive << one; }
		std::string_view bytes() const { return stream.view(); }

	private:
		std::ostringstream stream;
		Output archive{stream, Flags};
	};

	class reader {
	public:
		explicit reader(std::string const &bytes) : stream(bytes), archive(stream, Flags) {}
		Stored read() {
			Stored result;
			archive >> result;
			return result;
		}

	private:
		std::istringstream stream;
		Input archive;
	};
};

using boost::archive::binary_iarchive;
using boost::archive::binary_oarchive;
using boost::archive::text_iarchive;
using boost::archive::text_oarchive;

template <class Output, class Input>
void compete_both_ways(std::string const &kind) {
	compete<boost_archive<Output, Input, record, 0>>(kind, "Boost.Serialization");
	compete<boost_archive<Output, Input, bare_record, boost::archive::no_header>>(kind, "Boost.Serialization, bare");
}

void describe() {
	compete_both_ways<binary_oarchive, binary_iarchive>("binary");
	compete_both_ways<text_oarchive, text_iarchive>("text");
}

bench::entry const added(&describe);

} // namespace
} // namespace serialization_bench
