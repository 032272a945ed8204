// The turn of the language: which thread is in it.
//
// Values, scopes and class tables are shared by all threads and guarded by nothing but this: only
// the thread that has the turn may be in the language. The first thread of a program has it from
// the start, so a program of one thread never hears of it. One that has more gives it up (Pause)
// where it waits for something - an event loop, a box, an answer from the network - and everybody
// who enters the language from there asks for it: Hold waits, Attempt goes without when it is
// taken. Debug builds assert it at the doors of the language: evaluate, execute, method call, slot
// store.
//
// The turn is counted, so whoever has it may ask again. It can be lent to another thread that does
// a piece of work for this one (Loan).
//
// One thread must never block for the turn: that of the windows, to which the others send work and
// wait for it. Where it has to wait, it serves events (Windows).
#pragma once

class localTurn {
public:
    // Whether the calling thread has the turn.
    static bool isHeld();

    // Has the turn as long as it lives. Waits for it.
    class Hold {
    public:
        Hold();
        ~Hold();
        Hold(const Hold&) = delete;
        Hold& operator=(const Hold&) = delete;
    };

    // Has the turn as long as it lives when it could be had without waiting. A refusal on the
    // windows' thread makes Windows::freed() be called as soon as the turn is free.
    class Attempt {
    public:
        Attempt();
        ~Attempt();
        Attempt(const Attempt&) = delete;
        Attempt& operator=(const Attempt&) = delete;

        explicit operator bool() const { return held_; }

    private:
        bool held_;
    };

    // Gives the turn up, however often it was asked for, and has it back just so when this goes,
    // which waits. Does nothing on a thread that has not the turn.
    class Pause {
    public:
        Pause();
        ~Pause();
        Pause(const Pause&) = delete;
        Pause& operator=(const Pause&) = delete;

    private:
        int depth_;
    };

    // Lends the turn to the thread that does a piece of work for this one, which waits for it: the
    // work stands between the two ends of a Use, once. Nobody else gets the turn meanwhile, but by
    // a Pause of that work. A thread that has not the turn has nothing to lend, and the work is
    // done without.
    class Loan {
    public:
        Loan();
        ~Loan();
        Loan(const Loan&) = delete;
        Loan& operator=(const Loan&) = delete;

        class Use {
        public:
            explicit Use(const Loan& loan);
            ~Use();
            Use(const Use&) = delete;
            Use& operator=(const Use&) = delete;

        private:
            bool lent_;
        };

    private:
        int depth_;  // of the lender; 0 when it had nothing to lend
    };

    // How the windows' thread waits.
    class Windows {
    public:
        virtual ~Windows() = default;
        // Serves events until freed() was called, or shorter. Called on the windows' thread.
        virtual void wait() = 0;
        // The turn is free, and the windows' thread has asked for it. Called on any thread, must
        // come back at once and not ask for the turn.
        virtual void freed() = 0;
    };
    // The calling thread is that of the windows from now on; null means there is none. Does not
    // take ownership.
    static void windowsInstall(Windows* windows);
};
