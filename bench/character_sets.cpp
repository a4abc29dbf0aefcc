// GB2312 and UTF-8: whole texts, and one character.
#include <iconv.h>

#include <cstring>
#include <memory>

#if defined(VELKORD_BENCH_ICU)
#include <unicode/ucnv.h>
#endif

#include "Velkord.h"
#include "cases.h"
#include "contender.h"
#include "inputs.h"

namespace bench {

namespace {

constexpr size_t kTextBytes = size_t{64} << 10;
constexpr uint32_t kFirstHanziRow = 0xB0;
constexpr uint32_t kHanziRows = 72;
constexpr uint32_t kFirstCell = 0xA1;
constexpr uint32_t kCells = 94;

uint32_t RandomHanzi(Random& random) {
  for (;;) {
    const uint32_t gb =
        (kFirstHanziRow + random.Next(kHanziRows)) << 8 | (kFirstCell + random.Next(kCells));
    if (unitoc(ctouni(gb)) == gb) return gb;
  }
}

// A text in both forms, and the buffers that a contender writes.
struct Text {
  Text(std::string gb, size_t count) : characters(static_cast<double>(count)) {
    gbSize = static_cast<uint32_t>(gb.size());
    std::string utf8;
    for (size_t at = 0; at < gb.size();) {
      const auto first = static_cast<uint8_t>(gb[at]);
      uint32_t code = first;
      if (first < 0x80) {
        at += 1;
      } else {
        code = ctouni(uint32_t{first} << 8 | static_cast<uint8_t>(gb[at + 1]));
        at += 2;
      }
      uint8_t form[6];
      utf8.append(reinterpret_cast<char*>(form),
                  static_cast<size_t>(uniToUTF8(form, sizeof form, code)));
    }
    utf8Size = static_cast<uint32_t>(utf8.size());
    const size_t room = 2 * utf8.size() + 16;
    gbIn = std::make_unique<PageBuffer>(room, PageBuffer::kSource);
    utf8In = std::make_unique<PageBuffer>(room, PageBuffer::kSource);
    out = std::make_unique<PageBuffer>(room, PageBuffer::kDestination);
    outSize = room;
    std::memcpy(gbIn->Bytes(), gb.data(), gb.size());
    std::memcpy(utf8In->Bytes(), utf8.data(), utf8.size());
  }

  double characters;
  uint32_t gbSize;
  uint32_t utf8Size;
  size_t outSize;
  std::unique_ptr<PageBuffer> gbIn;
  std::unique_ptr<PageBuffer> utf8In;
  std::unique_ptr<PageBuffer> out;
};

// A text of about `bytes` bytes of GB2312, in runs of `run` characters, of which `asciiPercent` are
// ASCII.
std::shared_ptr<Text> MakeText(size_t bytes, uint32_t asciiPercent, size_t run) {
  Random random(static_cast<uint32_t>(bytes + asciiPercent + run));
  std::string gb;
  size_t characters = 0;
  while (gb.size() < bytes) {
    const bool ascii = random.Next(100) < asciiPercent;
    for (size_t at = 0; at < run; ++at, ++characters) {
      if (ascii) {
        gb += static_cast<char>('a' + random.Next(26));
        continue;
      }
      const uint32_t hanzi = RandomHanzi(random);
      gb += static_cast<char>(hanzi >> 8);
      gb += static_cast<char>(hanzi);
    }
  }
  return std::make_shared<Text>(gb, characters);
}

// A conversion of a whole input by a peer.
struct Job {
  const PageBuffer* in;
  uint32_t inSize;
  uint32_t wantedSize;
};

class IconvPeer {
 public:
  IconvPeer(const char* to, const char* from)
      : converter_(iconv_open(to, from), [](void* converter) { iconv_close(converter); }) {}

  void Convert(const Text& text, const Job& job) const {
    char* in = job.in->Text();
    char* out = text.out->Text();
    size_t left = job.inSize;
    size_t room = text.outSize;
    Require(iconv(converter_.get(), &in, &left, &out, &room) == 0 &&
                text.outSize - room == job.wantedSize,
            "iconv converts the text");
    benchmark::ClobberMemory();
  }

 private:
  std::shared_ptr<void> converter_;
};

#if defined(VELKORD_BENCH_ICU)
class IcuPeer {
 public:
  IcuPeer(const char* to, const char* from) : to_(Open(to)), from_(Open(from)) {}

  void Convert(const Text& text, const Job& job) const {
    UChar pivot[1024];
    UChar* pivotIn = pivot;
    UChar* pivotOut = pivot;
    const char* in = job.in->Text();
    char* out = text.out->Text();
    UErrorCode code = U_ZERO_ERROR;
    ucnv_convertEx(to_.get(), from_.get(), &out, out + text.outSize, &in, in + job.inSize, pivot,
                   &pivotIn, &pivotOut, pivot + std::size(pivot), true, true, &code);
    Require(U_SUCCESS(code) && out - text.out->Text() == job.wantedSize, "ICU converts the text");
    benchmark::ClobberMemory();
  }

 private:
  static std::shared_ptr<UConverter> Open(const char* name) {
    UErrorCode code = U_ZERO_ERROR;
    std::shared_ptr<UConverter> converter(ucnv_open(name, &code), ucnv_close);
    Require(U_SUCCESS(code), "ICU has the converter");
    return converter;
  }

  std::shared_ptr<UConverter> to_;
  std::shared_ptr<UConverter> from_;
};
#endif

template <typename Peer>
void AddPeer(const std::string& name, const char* contender, const std::shared_ptr<Text>& text,
             const Job& job, const Peer& peer) {
  peer.Convert(*text, job);
  Add(name, contender, text->characters, [text, job, peer] { peer.Convert(*text, job); });
}

void AddText(const std::string& name, const std::shared_ptr<Text>& text) {
  const Job toUtf8{text->gbIn.get(), text->gbSize, text->utf8Size};
  const Job toGb{text->utf8In.get(), text->utf8Size, text->gbSize};
  const std::string toUtf8Name = "gb_to_utf8_" + name;
  const std::string toGbName = "utf8_to_gb_" + name;

  // It takes ASCII in pairs too, so that with ASCII it does the work of the same size, and its
  // result is another.
  Add(toUtf8Name, "velkord", text->characters, [text] {
    uint32_t size;
    zhsToUtf8s(text->gbIn->Bytes(), static_cast<int32_t>(text->gbSize), text->out->Bytes(), &size);
    benchmark::DoNotOptimize(size);
    benchmark::ClobberMemory();
  });
  Add(toGbName, "velkord", text->characters, [text] {
    uint32_t size;
    utf8sToZhs(text->utf8In->Bytes(), text->utf8Size, text->out->Bytes(), &size);
    Require(size == text->gbSize, "the text is converted");
    benchmark::ClobberMemory();
  });
  for (const auto& [limitName, job] : {std::pair(toUtf8Name, toGb), std::pair(toGbName, toUtf8)}) {
    Add(limitName, "limit", text->characters, [text, job = job] {
      std::memcpy(text->out->Bytes(), job.in->Bytes(), job.inSize);
      benchmark::ClobberMemory();
    });
  }
  AddPeer(toUtf8Name, "iconv", text, toUtf8, IconvPeer("UTF-8", "GB2312"));
  AddPeer(toGbName, "iconv", text, toGb, IconvPeer("GB2312", "UTF-8"));
#if defined(VELKORD_BENCH_ICU)
  AddPeer(toUtf8Name, "icu", text, toUtf8, IcuPeer("UTF-8", "EUC-CN"));
  AddPeer(toGbName, "icu", text, toGb, IcuPeer("EUC-CN", "UTF-8"));
#endif
}

}  // namespace

void AddCharacterSets() {
  AddText("hanzi", MakeText(kTextBytes, 0, 1));
  AddText("mixed", MakeText(kTextBytes, 30, 1));
  AddText("mixed_runs", MakeText(kTextBytes, 30, 8));
  AddText("ascii", MakeText(kTextBytes, 100, 1));
  AddText("name", MakeText(36, 0, 18));

  constexpr uint32_t kCalls = 4096;
  const auto codes = std::make_shared<std::vector<uint32_t>>();
  Random random(1);
  while (codes->size() < kCalls) codes->push_back(RandomHanzi(random));
  Add("ctouni", "velkord", kCalls, [codes] {
    for (const uint32_t gb : *codes) benchmark::DoNotOptimize(ctouni(gb));
  });
  const auto points = std::make_shared<std::vector<uint32_t>>();
  for (const uint32_t gb : *codes) points->push_back(ctouni(gb));
  Add("unitoc", "velkord", kCalls, [points] {
    for (const uint32_t code : *points) benchmark::DoNotOptimize(unitoc(code));
  });
}

}  // namespace bench
