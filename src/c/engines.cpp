// Engines: their life and their last failure.
#include <memory>

#include "c/engine.h"
#include "diagnostics/messages.h"

using calvex::c::copyText;
using calvex::c::guarded;

extern "C" {

int calvex_create(calvex_engine** engine) {
  if (engine == nullptr) return CALVEX_NULL;
  return guarded([&] {
    *engine = std::make_unique<calvex_engine>().release();
    return CALVEX_OK;
  });
}

int calvex_destroy(calvex_engine* engine) {
  delete engine;
  return CALVEX_OK;
}

int calvex_reset(calvex_engine* engine) {
  if (engine == nullptr) return CALVEX_NULL;
  return engine->guarded([&] {
    engine->client.reset();
    return CALVEX_OK;
  });
}

int calvex_take_settings(calvex_engine* engine, const calvex_engine* other) {
  if (engine == nullptr) return CALVEX_NULL;
  return engine->guarded([&] {
    calvex::c::require(other, "other");
    if (other != engine) engine->client.takeSettings(other->client);
    return CALVEX_OK;
  });
}

int calvex_last_error(const calvex_engine* engine, char* text, size_t size, size_t* needed) {
  return engine == nullptr ? CALVEX_NULL : copyText(engine->lastError(), text, size, needed);
}

int calvex_last_cause(const calvex_engine* engine, char* text, size_t size, size_t* needed) {
  return engine == nullptr ? CALVEX_NULL : copyText(engine->lastCause(), text, size, needed);
}

int calvex_version(char* text, size_t size, size_t* needed) {
  return copyText(calvex::messageText(calvex::Message::version), text, size, needed);
}

}  // extern "C"
