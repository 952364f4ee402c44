// The event parser and the token stream beside others that report events.

#include <quor/quor.hpp>

#include "frame/frame.hpp"
#include "xml/catalog_text.hpp"
#include "xml/competition.hpp"

namespace xml_bench {
namespace {

using quor::strings::ustring8;
using token = quor::parser::xml_token_stream::token;

/// Touches each string, and little more.
class counter final : public receiver {
public:
	std::uint64_t sum = 0;

	void open(std::string const &name) override { take(name); }
	void close(std::string const &name) override { take(name); }
	void attribute(std::string const &name, std::string const &value) override {
		take(name);
		take(value);
	}
	void text(std::string const &piece) override { take(piece); }
	void comment(std::string const &body) override { take(body); }

private:
	void take(std::string const &text) {
		sum += text.size();
		sum += text.empty() ? 0U : static_cast<unsigned char>(text.back());
	}
};

/// Everything in order. White space of the two lines outside the root is told by some only.
class recorder final : public receiver {
public:
	std::string all;

	void open(std::string const &name) override {
		add('<', name);
		++m_depth;
	}
	void close(std::string const &name) override {
		--m_depth;
		add('/', name);
	}
	void attribute(std::string const &name, std::string const &value) override {
		add('@', name);
		add('=', value);
	}
	void text(std::string const &piece) override {
		if (m_depth != 0) {
			all += piece;
		}
	}
	void comment(std::string const &body) override { add('!', body); }

private:
	std::size_t m_depth = 0;

	void add(char kind, std::string const &text) {
		all += kind;
		all += text;
		all += kind;
	}
};

class listener {
public:
	explicit listener(receiver &to) : m_to(to) {
		m_parser.on_element_start() = quor::functor::member_function_t(this, &listener::open);
		m_parser.on_element_end() = quor::functor::member_function_t(this, &listener::close);
		m_parser.on_attribute() = quor::functor::member_function_t(this, &listener::attribute);
		m_parser.on_character() = quor::functor::member_function_t(this, &listener::text);
		m_parser.on_space() = quor::functor::member_function_t(this, &listener::text);
		m_parser.on_comment() = quor::functor::member_function_t(this, &listener::comment);
	}

	void parse(std::string const &document) {
		if (m_parser.parse(document.begin(), document.end()).code() != 0) {
			bench::disagree("the library's status");
		}
	}

	void open(ustring8 const &name) { m_to.open(name); }
	void close(ustring8 const &name) { m_to.close(name); }
	void attribute(ustring8 const &name, ustring8 const &value) { m_to.attribute(name, value); }
	void text(ustring8 const &piece) { m_to.text(piece); }
	void comment(ustring8 const &body) { m_to.comment(body); }

private:
	receiver &m_to;
	quor::parser::xml_parser m_parser;
};

void read_events(std::string const &document, receiver &to) {
	listener(to).parse(document);
}

void read_tokens(std::string const &document, receiver &to) {
	quor::parser::xml_token_stream stream;
	if (stream.parse(document.begin(), document.end()).code() != 0) {
		bench::disagree("the library's status");
	}
	for (auto it = stream.begin(); it != stream.end(); ++it) {
		switch (it->type()) {
		case token::token_element_start:
			to.open(it->value());
			break;
		case token::token_element_end:
			to.close(it->value());
			break;
		case token::token_attribute_name: {
			auto const &name = it->value();
			++it;
			to.attribute(name, it->value());
			break;
		}
		case token::token_comment:
			to.comment(it->value());
			break;
		case token::token_space:
		case token::token_character:
			to.text(it->value());
			break;
		default:
			break;
		}
	}
}

std::string record(reader read) {
	recorder to;
	read(document(), to);
	return to.all;
}

void describe() {
	compete(events_name, bench::library, &read_events);
	compete(tokens_name, bench::library, &read_tokens);
	bench::limit(events_name, "expat", 1 / 3.0, 0.25);
	bench::limit(events_name, "libxml2 SAX", 1);
	bench::limit(tokens_name, "expat, events alone", 1);
}

bench::entry const added(&describe);

} // namespace

std::string const &document() {
	static std::string const text = catalog_text(77'000);
	return text;
}

void compete(char const *operation, std::string const &name, reader read) {
	static std::string const expected = record(&read_events);
	if (record(read) != expected) {
		bench::disagree("the events of " + name);
	}
	bench::operation(operation, name, [read](benchmark::State &state) {
		for (auto _ : state) {
			counter to;
			read(document(), to);
			benchmark::DoNotOptimize(to.sum);
		}
	});
}

} // namespace xml_bench
