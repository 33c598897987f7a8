// How a command behaves, in sentences.
#include "orrery/Words.h"

#include "explain/Wanted.h"

namespace orrery::tool {

namespace {

std::string Where(const ParseFrame& frame) {
    const std::string name = frame.name;
    switch (frame.source) {
    case Source::Table:
        return "\"params\".\"table\"";
    case Source::Caps:
        return "\"params\".\"caps\"";
    case Source::CapsOrParams:
        return "\"params\".\"caps\", or \"params\" without it";
    case Source::Params:
        return "\"params\".\"" + name + "\"";
    case Source::Top:
        return "\"" + name + "\" of the reply";
    case Source::Result:
        return "\"result\"";
    }
    return {};
}

const char* OfNull(NullValue rule) {
    switch (rule) {
    case NullValue::Fails:
        return "without one the call fails";
    case NullValue::LengthZero:
        return "without one the call succeeds with no record";
    case NullValue::LengthUntouched:
        return "without one the call succeeds, and tells no length";
    case NullValue::OneRecord:
        return "without one there is a record that reads nothing";
    }
    return "";
}

const char* OfClearing(Clearing rule) {
    switch (rule) {
    case Clearing::Buffer:
        return "the whole buffer is cleared before";
    case Clearing::Record:
        return "the first record is cleared before";
    case Clearing::Read:
        return "each record is cleared as it is read";
    case Clearing::Kept:
        return "the buffer holds settings of the caller's and is not cleared";
    }
    return "";
}

const char* OfLength(ReplyLength rule) {
    switch (rule) {
    case ReplyLength::OneRecord:
        return "the length told is that of one record";
    case ReplyLength::PerRecord:
        return "the length told is that of all records read";
    case ReplyLength::PerFilled:
        return "the length told counts the records that something was read into";
    case ReplyLength::OneOfList:
        return "the length told is that of one record, 0 for a list of lists";
    case ReplyLength::Told:
        return "the record tells the length";
    case ReplyLength::None:
        return "no length is told";
    }
    return "";
}

const char* OfForm(Form form) {
    switch (form) {
    case Form::One:
        return "one record";
    case Form::Array:
        return "a list of as many records as there are";
    case Form::BareIfOne:
    case Form::BareIfExact:
        return "one record bare, several as a list";
    case Form::ByMember:
        return "an object with each record under its name";
    case Form::Nothing:
        return "an empty text of JSON, whatever the record";
    case Form::NoText:
        return "no text at all";
    }
    return "";
}

const char* OfCapacity(Capacity rule) {
    switch (rule) {
    case Capacity::Strict:
        return "the text must be shorter than its buffer";
    case Capacity::Loose:
        return "a text of exactly its buffer's size loses its last character to the terminator";
    case Capacity::Raw:
        return "a text of exactly its buffer's size has no terminator";
    case Capacity::OneBefore:
        return "the text must be shorter than its buffer by two";
    case Capacity::Bare:
        return "nothing is written behind the text";
    }
    return "";
}

const char* kSized = "each record begins with its caller's size, which may be an older one's";

} // namespace

std::vector<std::string> ParseSentences(const Command& command) {
    std::vector<std::string> said;
    if (command.parse == Command::Frame::Generic) {
        const GenericFrame& frame = command.genericFrame;
        said.push_back("reads \"params\".\"table\"; \"result\" must be true");
        said.push_back(frame.arrayForm ? "a list of records, or one record" : "one record");
        if (frame.zeroBuffer) said.push_back("the whole buffer is cleared before");
        said.push_back("the length of what is read is added to the length told");
        return said;
    }
    const ParseFrame& frame = command.parseFrame;
    if (command.parse == Command::Frame::Own) said.push_back("in a way of its own, which its header tells");
    said.push_back("reads " + Where(frame));
    if (frame.result != ResultTest::NotTested)
        said.push_back("\"result\" must be " + explain::ResultWanted(frame.result)
                       + (frame.result == ResultTest::Verdict ? ", else all is read before the call fails" : ""));
    else
        said.push_back("whatever \"result\" says");
    said.push_back("takes "
                   + (frame.takesBy != nullptr ? "a shape that the reply tells" : explain::Wanted(frame.take)));
    said.push_back(OfNull(frame.nullValue));
    said.push_back(OfClearing(frame.clearing));
    said.push_back(OfLength(frame.length));
    if (frame.stride != Stride::Record) said.push_back(kSized);
    if (frame.exactSize) said.push_back("the buffer must have exactly the record's size");
    if (frame.anySize) said.push_back("a smaller buffer takes a part of the record");
    if (frame.allMustFit) said.push_back("all records must fit, or none is read");
    if (frame.accepts != nullptr) said.push_back("the record is tested before");
    return said;
}

std::vector<std::string> PackSentences(const Command& command) {
    std::vector<std::string> said;
    if (command.pack == Command::Frame::Own) return {"in a way of its own, which its header tells"};
    if (command.pack == Command::Frame::Generic) {
        said.push_back(command.genericFrame.alwaysArray ? "always a list of records"
                                                        : "a record, or a list of several");
        return said;
    }
    const PackFrame& frame = command.packFrame;
    said.push_back(OfForm(frame.form));
    if (frame.quotedKey[0] != '\0')
        said.push_back("under the key "
                       + std::string(frame.quotedKey, 0, std::string_view(frame.quotedKey).rfind('"') + 1));
    said.push_back(OfCapacity(frame.capacity));
    if (frame.stride != Stride::Record) said.push_back(kSized);
    if (frame.exactSize) said.push_back("the record must have exactly its size");
    if (frame.keepsText) said.push_back("a call that fails leaves the text buffer as it was");
    if (frame.accepts != nullptr) said.push_back("the record is tested before");
    return said;
}

} // namespace orrery::tool
