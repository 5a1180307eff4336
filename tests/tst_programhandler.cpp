// The program store and the heatfile text: classes, favourites, replace and delete rules,
// what goes to the controller, the round trip, and that no record leaks or dangles.
#include "communication/messagehandler.h"
#include "programs/heatfiletext.h"
#include "programs/programhandler.h"

#include <QRandomGenerator>
#include <QSignalSpy>
#include <QtTest>

using ovra::Communication::MessageHandler;
using ovra::GlobalElements::Program;
using ovra::ProgramHandler::ProgramHandler;
namespace HeatfileText = ovra::GlobalElements::HeatfileText;

namespace {
void quiet(QtMsgType, const QMessageLogContext &, const QString &) {}

Program *make(const QString &name, const QString &maker = QStringLiteral("user"),
              const QString &material = QStringLiteral("Zirkon"), bool fav = false)
{
    return new Program(name, material, {{10u, 1500u, 120u}}, maker, fav);
}

QStringList names(const QList<Program *> &list)
{
    QStringList out;
    for (const Program *p : list)
        out << p->GetName();
    return out;
}

QStringList names(QList<Program *> *owned)
{
    const QStringList out = names(*owned);
    delete owned;
    return out;
}
} // namespace

class TestProgramHandler : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { qInstallMessageHandler(quiet); }
    void writerExamples();
    void changeFlagIsUsedUpByOneWrite();
    void roundTripOverGeneratedPrograms();
    void savingATakenNameNeedsTheOverwriteQuestion();
    void receivedProgramReplacesInPlace();
    void favourites();
    void deleteByName();
    void favouriteFromARowOfARetiredRecord();
};

void TestProgramHandler::writerExamples()
{
    // A whole text in Kelvin and seconds: what the simulator stores in the start-up test.
    Program empty(QStringLiteral("E"), QStringLiteral("argon"), {}, QStringLiteral("x"), true);
    QCOMPARE(HeatfileText::Write(empty),
             QStringLiteral("[metainfo];name=E;manufacturer=x;material=argon;favorite=true;"));

    // Lower-case argon gets no argon elements; "Argon" gets one after every segment.
    Program two(QStringLiteral("T"), QStringLiteral("argon"), {{1u, 50u, 0u}, {2u, 60u, 1u}}, QStringLiteral("u"),
                false);
    QVERIFY(!HeatfileText::Write(two).contains(QStringLiteral("argon=")));
    two.SetMaterial(QStringLiteral("Argon"));
    QCOMPARE(HeatfileText::Write(two).count(QStringLiteral("argon=on;")), 2);
}

void TestProgramHandler::changeFlagIsUsedUpByOneWrite()
{
    ProgramHandler store;
    QSignalSpy sent(&store, &ProgramHandler::SignalSendProgToHX3);
    Program p(QStringLiteral("A"), QStringLiteral("Zirkon"), {{1u, 100u, 1u}}, QStringLiteral("user"), false);
    store.SetChangeInProcess();
    store.ParseProgToString(&p);
    store.ParseProgToString(&p);
    QVERIFY(sent.at(0).at(0).toString().startsWith(QStringLiteral("hpchange==[metainfo];name=A;")));
    QVERIFY(sent.at(1).at(0).toString().startsWith(QStringLiteral("heatfile==[metainfo];name=A;")));
}

void TestProgramHandler::roundTripOverGeneratedPrograms()
{
    // Whatever the editor can store reads back into an equal record.
    QRandomGenerator random(4711);
    MessageHandler reader(ovra::GlobalElements::Paths(QStringLiteral("/nonexistent/ovra-home")));
    QList<Program *> received;
    connect(&reader, &MessageHandler::SignalHeatfileReceived, this, [&received](Program *p) { received << p; });
    const QString alphabet = QStringLiteral("abcdefghijklmnopqrstuvwxyzÄÖÜäöüß ABC-_0123456789");
    const QStringList materials = {QStringLiteral("Zirkon"), QStringLiteral("Argon"), QStringLiteral("Glaskeramik")};
    const QStringList makers = {QStringLiteral("user"), QStringLiteral("service"), QStringLiteral("DentaCeram")};
    for (int n = 0; n < 500; ++n) {
        QString name;
        const int length = int(random.bounded(1, 24));
        for (int i = 0; i < length; ++i)
            name += alphabet.at(int(random.bounded(alphabet.size())));
        Program::Matrix matrix;
        const int rows = int(random.bounded(1, 11));
        for (int r = 0; r < rows; ++r)
            matrix.append({unsigned(random.bounded(1, 121)), unsigned(random.bounded(50, 1651)),
                           unsigned(random.bounded(0, 1000))});
        Program original(name, materials.at(n % 3), matrix, makers.at((n / 3) % 3), n % 2 == 0);
        reader.HandleRecvHeatfile(HeatfileText::Write(original));
        QCOMPARE(received.size(), n + 1);
        const Program *back = received.last();
        QCOMPARE(back->GetName(), original.GetName());
        QCOMPARE(back->GetMaterial(), original.GetMaterial());
        QCOMPARE(back->GetManufacturer(), original.GetManufacturer());
        QCOMPARE(back->IsFav(), original.IsFav());
        QCOMPARE(*back->GetMatrix(), *original.GetMatrix());
    }
    qDeleteAll(received);
}

void TestProgramHandler::savingATakenNameNeedsTheOverwriteQuestion()
{
    ProgramHandler store;
    QSignalSpy sent(&store, &ProgramHandler::SignalSendProgToHX3);
    QSignalSpy shown(&store, &ProgramHandler::SignalShowProg);
    Program *first = make("Mine", "user", "Zirkon", true);
    store.Slot_AddProgramToList(first);
    QCOMPARE(sent.count(), 1);
    QCOMPARE(shown.count(), 1);

    // Same name, no overwrite confirmed: nothing stored, nothing sent.
    store.Slot_AddProgramToList(make("Mine"));
    QCOMPARE(sent.count(), 1);
    QCOMPARE(store.GetProgramList()->size(), 1);
    QCOMPARE(store.GetProgramList()->first(), first);

    // Confirmed: replaced in place, keeps the old favourite flag, one heatfile, flag used up.
    store.SetChangeActive();
    Program *second =
        new Program(QStringLiteral("Mine"), QStringLiteral("Zirkon"), {{5u, 900u, 3u}}, QStringLiteral("user"), false);
    store.Slot_AddProgramToList(second);
    QCOMPARE(store.GetProgramList()->first(), second);
    QVERIFY(second->IsFav());
    QCOMPARE(sent.count(), 2);
    QVERIFY(sent.last().at(0).toString().contains(QStringLiteral("favorite=true;[1];rate=5;temp=1173;hold=180;")));
    QVERIFY(!store.IsChangeActive());
    store.Slot_AddProgramToList(make("Mine"));
    QCOMPARE(sent.count(), 2);
}

void TestProgramHandler::receivedProgramReplacesInPlace()
{
    ProgramHandler store;
    QSignalSpy sent(&store, &ProgramHandler::SignalSendProgToHX3);
    store.Slot_AddReceivedProgram(make("A"));
    store.Slot_AddReceivedProgram(make("B"));
    store.Slot_AddReceivedProgram(make("C"));
    Program *fresh = make("B", "Zircos");
    store.Slot_AddReceivedProgram(fresh);
    QCOMPARE(names(*store.GetProgramList()), (QStringList{"A", "B", "C"}));
    QCOMPARE(store.GetProgramList()->at(1), fresh);
    QCOMPARE(sent.count(), 0); // programs from the controller are only stored
}

void TestProgramHandler::favourites()
{
    ProgramHandler store;
    Program *a = make("A");
    Program *b = make("B");
    store.Slot_AddReceivedProgram(a);
    store.Slot_AddReceivedProgram(b);
    store.Slot_SetProgramToFav(b);
    store.Slot_SetProgramToFav(a);
    // Program-list order, decided by the flags.
    QCOMPARE(names(store.GetFavoriteProgramList()), (QStringList{"A", "B"}));

    // Turning off a program that is not on the favourites list leaves its flag alone.
    Program *c = make("C", "user", "Zirkon", true);
    store.Slot_AddReceivedProgram(c);
    store.Slot_DeleteProgramFromFavoriteList(c);
    QVERIFY(c->IsFav());

    store.Slot_DeleteProgramFromFavoriteList(a);
    QVERIFY(!a->IsFav());

    // A favourite replaced from the controller: the favourites list follows the new record,
    // so turning it off afterwards works and nothing points at the retired one.
    Program *b2 = make("B");
    b2->SetFav(true);
    store.Slot_AddReceivedProgram(b2);
    store.ReleaseRetired();
    store.Slot_DeleteProgramFromFavoriteList(b2);
    QVERIFY(!b2->IsFav());
}

void TestProgramHandler::deleteByName()
{
    ProgramHandler store;
    QSignalSpy requests(&store, &ProgramHandler::SignalAddToRequest);
    store.Slot_DeleteProgramFromList(QStringLiteral("nothing"));
    QCOMPARE(requests.count(), 0);

    Program *x1 = make("X");
    Program *x2 = make("X");
    store.GetProgramList()->append(x1); // two adjacent records of one name
    store.GetProgramList()->append(x2);
    store.Slot_AddReceivedProgram(make("Y"));
    store.Slot_SetProgramToFav(x1);
    store.Slot_DeleteProgramFromList(QStringLiteral("X"));
    // The second of two adjacent records of the name is skipped.
    QCOMPARE(names(*store.GetProgramList()), (QStringList{"X", "Y"}));
    QCOMPARE(store.GetProgramList()->first(), x2);
    QCOMPARE(requests.count(), 1);
    QCOMPARE(requests.at(0).at(0).toString(), QStringLiteral("hpdelete==X"));
    QCOMPARE(names(store.GetFavoriteProgramList()), QStringList());
}

void TestProgramHandler::favouriteFromARowOfARetiredRecord()
{
    // A list row still holds a record the controller has just sent again when its star is
    // tapped; the list is rebuilt (which frees retired records) and another favourite is set.
    // The favourites list must never hold the retired record: the last step read it after it
    // was freed (heap-use-after-free under the sanitizer build).
    ProgramHandler store;
    Program *old = make("P");
    store.Slot_AddReceivedProgram(old);
    store.Slot_AddReceivedProgram(make("Q"));
    Program *fresh = make("P");
    store.Slot_AddReceivedProgram(fresh);

    store.Slot_SetProgramToFav(old); // the star on the row shown before the resend
    store.ReleaseRetired();
    Program *q = store.GetProgramByName(QStringLiteral("Q"));
    store.Slot_SetProgramToFav(q);
    // The favourite reached the record of that name, as the controller hears it by name.
    QCOMPARE(store.GetFavoriteEntries(), (QList<Program *>{fresh, q}));
    QVERIFY(fresh->IsFav());

    // Off from a stale row as well; a favourite record replaced afterwards passes the entry on.
    Program *older = fresh;
    store.Slot_AddReceivedProgram(fresh = make("P"));
    QCOMPARE(store.GetFavoriteEntries(), (QList<Program *>{fresh, q}));
    store.Slot_DeleteProgramFromFavoriteList(older);
    QCOMPARE(store.GetFavoriteEntries(), QList<Program *>{q});
    QVERIFY(!fresh->IsFav());

    // A deleted record's row, and a record the store never held, favour nothing.
    store.Slot_DeleteProgramFromList(QStringLiteral("Q"));
    QVERIFY(store.GetFavoriteEntries().isEmpty());
    store.Slot_SetProgramToFav(q); // retired, and no record of its name is stored
    Program stranger(QStringLiteral("P"), QStringLiteral("Zirkon"), {}, QStringLiteral("user"), false);
    store.Slot_SetProgramToFav(&stranger);
    QVERIFY(store.GetFavoriteEntries().isEmpty());
    QVERIFY(!fresh->IsFav() && !stranger.IsFav());
    store.ReleaseRetired();
    store.Slot_SetProgramToFav(fresh);
    QCOMPARE(store.GetFavoriteEntries(), QList<Program *>{fresh});
}

QTEST_GUILESS_MAIN(TestProgramHandler)
#include "tst_programhandler.moc"
