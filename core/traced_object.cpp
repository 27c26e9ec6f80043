#include "core/traced_object.h"

#include "core/trace_text.h"
#include "platform/error.h"

namespace nerida {
namespace {

template <class Access>
auto run(TracedCall& line, Access access) {
  try {
    return access();
  } catch (const Error& failure) {
    line.failed(failure);
    throw;
  }
}

class TracedObject : public Object {
 public:
  TracedObject(ObjectRef object, std::shared_ptr<Trace> trace) : object(std::move(object)), trace(std::move(trace)) {}

  Value get(const std::string& member) override {
    TracedCall line(trace, "get " + member);
    return run(line, [&] {
      Value result = object->get(member);
      line.returned(result);
      return result;
    });
  }

  void let(const std::string& member, const Value& value) override {
    TracedCall line(trace, "let " + member, " = " + traceText(value));
    run(line, [&] { object->let(member, value); });
  }

  Value call(const std::string& member, std::span<Argument> arguments) override {
    TracedCall line(trace, "call " + member, traceText(arguments));
    return run(line, [&] {
      Value result = object->call(member, arguments);
      line.returned(result, arguments);
      return result;
    });
  }

 private:
  ObjectRef object;
  std::shared_ptr<Trace> trace;
};

}  // namespace

ObjectRef watched(ObjectRef object, std::shared_ptr<Trace> trace) {
  if (!object || !trace) return object;
  return std::make_shared<TracedObject>(std::move(object), std::move(trace));
}

}  // namespace nerida
