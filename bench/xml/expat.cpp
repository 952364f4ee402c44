#include <list>

#include <expat.h>

#include "frame/frame.hpp"
#include "xml/competition.hpp"

namespace xml_bench {
namespace {

void open(void *user, XML_Char const *name, XML_Char const **attributes) {
	auto &to = *static_cast<receiver *>(user);
	to.open(name);
	for (; *attributes != nullptr; attributes += 2) {
		to.attribute(attributes[0], attributes[1]);
	}
}

void close(void *user, XML_Char const *name) {
	static_cast<receiver *>(user)->close(name);
}

void text(void *user, XML_Char const *bytes, int length) {
	static_cast<receiver *>(user)->text(std::string(bytes, static_cast<std::size_t>(length)));
}

void comment(void *user, XML_Char const *body) {
	static_cast<receiver *>(user)->comment(body);
}

void read(std::string const &document, receiver &to) {
	XML_Parser const parser = XML_ParserCreate(nullptr);
	XML_SetUserData(parser, &to);
	XML_SetElementHandler(parser, &open, &close);
	XML_SetCharacterDataHandler(parser, &text);
	XML_SetCommentHandler(parser, &comment);
	if (XML_Parse(parser, document.data(), static_cast<int>(document.size()), 1) != XML_STATUS_OK) {
		bench::disagree("expat finds a fault");
	}
	XML_ParserFree(parser);
}

/// Keeps the events, to report them afterwards.
class keeper final : public receiver {
public:
	void open(std::string const &name) override { m_tokens.emplace_back('<', name); }
	void close(std::string const &name) override { m_tokens.emplace_back('/', name); }
	void attribute(std::string const &name, std::string const &value) override {
		m_tokens.emplace_back('@', name);
		m_tokens.emplace_back('=', value);
	}
	void text(std::string const &piece) override { m_tokens.emplace_back(' ', piece); }
	void comment(std::string const &body) override { m_tokens.emplace_back('!', body); }

	void report(receiver &to) const {
		for (auto it = m_tokens.begin(); it != m_tokens.end(); ++it) {
			switch (it->first) {
			case '<':
				to.open(it->second);
				break;
			case '/':
				to.close(it->second);
				break;
			case '@': {
				auto const &name = it->second;
				++it;
				to.attribute(name, it->second);
				break;
			}
			case '!':
				to.comment(it->second);
				break;
			default:
				to.text(it->second);
				break;
			}
		}
	}

private:
	std::list<std::pair<char, std::string>> m_tokens;
};

void read_list(std::string const &document, receiver &to) {
	keeper kept;
	read(document, kept);
	kept.report(to);
}

void describe() {
	compete(events_name, "expat", &read);
	compete(tokens_name, "expat, events alone", &read);
	compete(tokens_name, "expat and std::list", &read_list);
}

bench::entry const added(&describe);

} // namespace
} // namespace xml_bench
