// A program whose static objects write to the wide streams before main begins and after it
// has ended. It includes nothing that would make the streams on its own.

#include <quor/strings/gh2/streams.hpp>

namespace {

namespace strings = QUOR_2_9::strings;
namespace gh2 = strings::gh2;

struct talker {
	talker() {
		gh2::ucin.peek();
		gh2::ucout << strings::ustring16(QUOR_W("begin ")) << (gh2::ucin.eof() ? L"eof " : L"");
		gh2::ucerr << strings::ustring16(QUOR_W(""));
	}
	~talker() { gh2::ucout << strings::ustring16(QUOR_W("end")) << std::endl; }
	talker(talker const &) = delete;
	talker &operator=(talker const &) = delete;
};

talker const early;

} // namespace

int main() {
	gh2::ucout << strings::ustring16(QUOR_W("main "));
	return gh2::ucout.good() && gh2::ucerr.good() ? 0 : 1;
}
