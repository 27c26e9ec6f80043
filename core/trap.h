#pragma once

#include <new>

#include "platform/error.h"

namespace nerida {

// Runs a statement or a whole routine; a failure ends it and goes to the handler as an Error.
template <class Body, class Handler>
void trap(Body&& body, Handler&& onError) {
  try {
    body();
  } catch (const Error& failure) {
    onError(failure);
  } catch (const std::bad_alloc&) {
    onError(Error(error::outOfMemory));
  }
}

// Runs one statement and goes on with the next whatever happens.
template <class Body>
void ignoringErrors(Body&& body) {
  trap(body, [](const Error&) {});
}

}  // namespace nerida
