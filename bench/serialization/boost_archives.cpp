// Boost.Serialization, without what it may write beside the values: no archive header, no
// class information, no tracking of addresses.

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

namespace boost::serialization {

template <class Archive>
void serialize(Archive &archive, serialization_bench::record &one, unsigned int /*version*/) {
	one.each([&archive](auto &field) { archive &field; });
}

} // namespace boost::serialization

BOOST_CLASS_IMPLEMENTATION(serialization_bench::record, boost::serialization::object_serializable)
BOOST_CLASS_TRACKING(serialization_bench::record, boost::serialization::track_never)

namespace serialization_bench {
namespace {

template <class Output, class Input>
struct boost_archive {
	using record_type = record;
	using bytes_type = std::string;

	class writer {
	public:
		void write(record const &one) { archive << one; }
		std::string_view bytes() const { return stream.view(); }

	private:
		std::ostringstream stream;
		Output archive{stream, boost::archive::no_header};
	};

	class reader {
	public:
		explicit reader(std::string const &bytes) : stream(bytes), archive(stream, boost::archive::no_header) {}
		record read() {
			record result;
			archive >> result;
			return result;
		}

	private:
		std::istringstream stream;
		Input archive;
	};
};

void describe() {
	compete<boost_archive<boost::archive::binary_oarchive, boost::archive::binary_iarchive>>("binary",
	                                                                                         "Boost.Serialization");
	compete<boost_archive<boost::archive::text_oarchive, boost::archive::text_iarchive>>("text", "Boost.Serialization");
}

bench::entry const added(&describe);

} // namespace
} // namespace serialization_bench
