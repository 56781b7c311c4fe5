#include <QtTest>

#include <memory>
#include <vector>

namespace
{

struct Root {
    virtual ~Root() = default;
    int root = 1;
};
struct Left : virtual Root {
    int left = 2;
};
struct Right : virtual Root {
    int right = 3;
};
struct OtherRight : virtual Root {
    int other = 4;
};
struct Diamond : Right, OtherRight {
    int diamond = 5;
};
struct Mixed : Left, Diamond {
    int mixed = 6;
};
struct Side {
    virtual ~Side() = default;
    int side = 7;
};
struct Joined : Left, Side {
    int joined = 8;
};
struct Hidden : Left, private Side {
    const Side *hidden() const { return this; }
};
struct Twice : Joined, Mixed {
};

// What its parts see while it is made: another class than in the end.
struct Seen : Side {
    explicit Seen(std::vector<bool> *answers)
    {
        Side *self = this;
        answers->push_back(dynamic_cast<Root *>(self) != nullptr);
        answers->push_back(dynamic_cast<Seen *>(self) != nullptr);
    }
};
struct Finished : Seen, Root {
    explicit Finished(std::vector<bool> *answers)
        : Seen(answers)
    {
        Side *self = this;
        answers->push_back(dynamic_cast<Root *>(self) != nullptr);
    }
};

// A class of its own for each number, with its second part elsewhere than in the next one, or none.
template <int number>
struct Filling {
    char bytes[8 * (number % 5 + 1)] = {};
};
struct Nothing {
};
template <int number>
struct Many : Side, Filling<number>, std::conditional_t<number % 6 == 0, Nothing, Root> {
    int own = number;
};

template <int... numbers>
std::vector<std::unique_ptr<Side>> makeMany(std::integer_sequence<int, numbers...>)
{
    std::vector<std::unique_ptr<Side>> all;
    (all.push_back(std::make_unique<Many<numbers>>()), ...);
    return all;
}

// More than there is room for.
template <int number>
struct Kind : Side {
};

// Of how many of them the object is.
template <int... numbers>
int countOfKinds(const Side *object, std::integer_sequence<int, numbers...>)
{
    return (0 + ... + (dynamic_cast<const Kind<numbers> *>(object) ? 1 : 0));
}

} // namespace

class TestQuickCasts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The expected places are those that the compiler knows without asking.
    void aCastIsWhatItWas()
    {
        for (int i = 0; i < 3; ++i) {
            Joined joined;
            Left *left = &joined;
            Side *side = &joined;
            Root *root = &joined;
            QCOMPARE(dynamic_cast<Joined *>(left), &joined);
            QCOMPARE(dynamic_cast<Joined *>(side), &joined);
            QCOMPARE(dynamic_cast<Joined *>(root), &joined);
            QCOMPARE(dynamic_cast<Side *>(root), side);
            QCOMPARE(dynamic_cast<Left *>(side), left);
            QCOMPARE(dynamic_cast<Root *>(side), root);
            QVERIFY(!dynamic_cast<Mixed *>(root));
            QVERIFY(!dynamic_cast<Twice *>(side));

            Diamond diamond;
            Right *right = &diamond;
            OtherRight *other = &diamond;
            root = &diamond;
            QCOMPARE(dynamic_cast<Diamond *>(root), &diamond);
            QCOMPARE(dynamic_cast<Right *>(root), right);
            QCOMPARE(dynamic_cast<OtherRight *>(right), other);
            QCOMPARE(dynamic_cast<Right *>(other), right);
            QVERIFY(!dynamic_cast<Mixed *>(right));

            // The same part in a larger whole stands elsewhere.
            Mixed mixed;
            right = &mixed;
            other = &mixed;
            left = &mixed;
            QCOMPARE(dynamic_cast<OtherRight *>(right), other);
            QCOMPARE(dynamic_cast<Left *>(right), left);
            QCOMPARE(dynamic_cast<Mixed *>(right), &mixed);
            QCOMPARE(dynamic_cast<Mixed *>(left), &mixed);

            // Nobody knows which of two parts is meant.
            Twice twice;
            Left *first = static_cast<Joined *>(&twice);
            Left *second = static_cast<Mixed *>(&twice);
            side = &twice;
            QCOMPARE(dynamic_cast<Joined *>(first), static_cast<Joined *>(&twice));
            QCOMPARE(dynamic_cast<Joined *>(second), static_cast<Joined *>(&twice));
            QCOMPARE(dynamic_cast<Mixed *>(first), static_cast<Mixed *>(&twice));
            QCOMPARE(dynamic_cast<Twice *>(second), &twice);
            QVERIFY(!dynamic_cast<Left *>(side));
            QVERIFY(!dynamic_cast<Left *>(static_cast<Right *>(&twice)));

            Hidden hidden;
            root = &hidden;
            QVERIFY(!dynamic_cast<Side *>(root));
            QVERIFY(!dynamic_cast<Root *>(const_cast<Side *>(hidden.hidden())));
        }
    }

    void anObjectIsOfTheClassThatItIsSoFar()
    {
        for (int i = 0; i < 3; ++i) {
            std::vector<bool> answers;
            const Finished finished(&answers);
            QCOMPARE(answers, std::vector<bool>({false, true, true}));
        }
    }

    void moreClassesThanAreKept()
    {
        // Each class twice: where a cast fails for one object it has to fail for all.
        const auto some = makeMany(std::make_integer_sequence<int, 150>());
        const auto others = makeMany(std::make_integer_sequence<int, 150>());
        for (const auto &all : {&some, &others, &some}) {
            for (size_t number = 0; number < all->size(); ++number) {
                Side *object = all->at(number).get();
                Root *root = dynamic_cast<Root *>(object);
                QCOMPARE(root == nullptr, number % 6 == 0);
                if (root) {
                    QCOMPARE(root->root, 1);
                    QCOMPARE(dynamic_cast<Side *>(root), object);
                    QVERIFY(!dynamic_cast<Left *>(root));
                }
                QVERIFY(!dynamic_cast<Left *>(object));
            }
        }
    }

    void moreKindsOfCastsThanAreKept()
    {
        const Kind<300> object;
        for (int i = 0; i < 2; ++i)
            QCOMPARE(countOfKinds(&object, std::make_integer_sequence<int, 1100>()), 1);
    }
};

QTEST_APPLESS_MAIN(TestQuickCasts)
#include "tst_quickcasts.moc"
