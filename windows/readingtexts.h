#ifndef READINGTEXTS_H
#define READINGTEXTS_H

// The long rich-text documents of the reading windows, kept out of the form tables so that a
// change of wording never touches a layout.
namespace readingtexts {

extern const char startingTheGame[];
extern const char buttons[];
extern const char virtualInstructor[];
extern const char afterTheGame[];
extern const char selfExploreEssay[];
extern const char aboutMission[];
extern const char aboutCredit[];

} // namespace readingtexts

#endif
