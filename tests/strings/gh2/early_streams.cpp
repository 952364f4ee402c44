// A program whose static objects write to the wide streams before main begins and after it
// has ended, in the "C" locale. It includes nothing that would make the streams on its own.

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
	// What the locale lacks is replaced, or ends the output until clear().
	gh2::ucout << strings::ustring16(QUOR_W("ab\u4E2Dcd")) << L"ef";
	bool const bad = gh2::ucout.bad();
	gh2::ucout.clear();
	gh2::ucout << (bad ? L" bad " : L" good ") << (gh2::ucerr.good() ? L"" : L"no errors ");
	return 0;
}
