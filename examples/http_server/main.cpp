// An HTTP server whose threads answer each request in the language that its client prefers.
//
//     http_server [PORT]     a free port when none is given; the first line tells which
//
// It finds its texts as any host does: from the folder of the examples,
//
//     TAVI_XLATE_ROOT=catalogues http_server 8080
//
//     curl -H 'Accept-Language: fr-CA, en;q=0.5' 'localhost:8080/welcome?name=Ann'
//
// Its texts are language files, which may be replaced while it runs: the next request shows the new
// ones. SIGHUP makes it look for languages that were installed since; SIGTERM ends it.

#include <httplib.h>
#include <pthread.h>
#include <KxXlate.hpp>

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <iostream>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace {

constexpr char kBundle[] = "gateway";
constexpr char kSite[] = "alpha";

/// The languages that can be asked for. The library keeps what it reads for a locale, so strangers
/// must not name any that they like.
class Languages {
 public:
  Languages() { Look(); }

  void Look() {
    std::vector<std::string> found = kx::locales(kBundle);
    // The first is what clients get that ask for "*".
    std::stable_partition(found.begin(), found.end(),
                          [](const auto& each) { return each == "EN"; });
    auto shared = std::make_shared<const std::vector<std::string>>(std::move(found));
    const std::lock_guard guard(lock_);
    found_ = std::move(shared);
  }

  /// The translator for what a client's Accept-Language says; English when it names no language
  /// that is installed.
  kx::Translator TextsFor(const std::string& acceptLanguage) const {
    return kx::Translator::find(kBundle, kx::negotiate(acceptLanguage, *Found()));
  }

 private:
  std::shared_ptr<const std::vector<std::string>> Found() const {
    const std::lock_guard guard(lock_);
    return found_;
  }

  mutable std::mutex lock_;
  std::shared_ptr<const std::vector<std::string>> found_;
};

/// A page of one line. Nothing of a translator is kept: the next request has its own.
void Answer(httplib::Response& response, const kx::Translator& texts, const std::string& line) {
  std::string language(texts.language());
  if (!texts.country().empty()) language.append("-").append(texts.country());
  response.set_header("Content-Language", language);
  response.set_header("Vary", "Accept-Language");
  response.set_content(line + '\n', "text/plain; charset=utf-8");
}

void AddPages(httplib::Server& server, const Languages& languages) {
  server.Get("/welcome", [&](const httplib::Request& request, httplib::Response& response) {
    const kx::Translator texts = languages.TextsFor(request.get_header_value("Accept-Language"));
    Answer(response, texts, texts.format("WELCOME", request.get_param_value("name"), kSite));
  });
  server.Get("/login", [&](const httplib::Request& request, httplib::Response& response) {
    const kx::Translator texts = languages.TextsFor(request.get_header_value("Accept-Language"));
    Answer(response, texts, texts.prompt("LOGIN_PROMPT").value_or("User name:"));
  });
}

sigset_t BlockSignals() {
  sigset_t signals;
  sigemptyset(&signals);
  for (const int each : {SIGHUP, SIGINT, SIGTERM}) sigaddset(&signals, each);
  pthread_sigmask(SIG_BLOCK, &signals, nullptr);
  return signals;
}

/// Serves the operator until the end.
void WaitForSignals(const sigset_t& signals, Languages& languages, httplib::Server& server) {
  for (int signal = 0; sigwait(&signals, &signal) == 0 && signal == SIGHUP;) {
    // Else files that were not there when a language was read would not be looked for.
    CKxXlate::FreeCache();
    languages.Look();
  }
  server.stop();
}

}  // namespace

int main(int count, char** values) {
  const sigset_t signals = BlockSignals();  // before there are threads, which inherit it
  Languages languages;
  httplib::Server server;
  server.set_tcp_nodelay(true);  // answers are small
  AddPages(server, languages);

  int port = count > 1 ? std::atoi(values[1]) : 0;
  if (port == 0) {
    port = server.bind_to_any_port("127.0.0.1");
  } else if (!server.bind_to_port("127.0.0.1", port)) {
    port = -1;
  }
  if (port < 0) {
    std::cerr << "cannot listen\n";
    return 1;
  }
  std::cout << languages.TextsFor("en").format("SERVICE_READY", port) << std::endl;

  std::thread operators([&] { WaitForSignals(signals, languages, server); });
  server.listen_after_bind();
  operators.join();
}
