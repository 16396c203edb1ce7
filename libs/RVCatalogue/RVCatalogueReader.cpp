#include "RVCatalogueReader.h"

#include "RVCatalogueFileSet.h"
#include "RVCatalogueParser_p.h"
#include "RVDuplicates_p.h"
#include "RVFindingReport_p.h"
#include "RVGroupSilence_p.h"
#include "RVSilencer_p.h"
#include "RVXmlScanner_p.h"

#include <QCoreApplication>
#include <QFile>
#include <QMutex>
#include <QRunnable>
#include <QSemaphore>
#include <QThread>
#include <QThreadPool>

#include <algorithm>
#include <deque>
#include <utility>

namespace {

/// The reading thread keeps one core busy for a third of the time, so more cores would wait.
int mostThreads()
{
    constexpr int most = 8;
    return std::clamp(QThread::idealThreadCount(), 1, most);
}

/// Products that a thread works on, and their result.
class Order
{
public:
    using Work = std::function<std::shared_ptr<void>(const QList<RVCatalogueProduct> &)>;

    /// @p work outlives the order.
    Order(const QList<RVCatalogueProduct> &products, const Work &work) : myProducts(products), myWork(work) { }

    void run()
    {
        myResult = myWork(std::exchange(myProducts, {}));
        myIsDone.release();
    }
    /// Waits for the result.
    std::shared_ptr<void> result()
    {
        myIsDone.acquire();
        return std::move(myResult);
    }

private:
    QList<RVCatalogueProduct> myProducts;
    const Work &myWork;
    std::shared_ptr<void> myResult;
    QSemaphore myIsDone;
};

/// The orders that wait for a thread.
class OrderQueue
{
    Q_DISABLE_COPY_MOVE(OrderQueue)

public:
    OrderQueue() = default;

    void add(const std::shared_ptr<Order> &order)
    {
        const QMutexLocker locker(&myMutex);
        myOrders.push_back(order);
        mySize.release();
    }
    /// Waits for an order; null ends a thread.
    std::shared_ptr<Order> take()
    {
        mySize.acquire();
        const QMutexLocker locker(&myMutex);
        const std::shared_ptr<Order> first = myOrders.front();
        myOrders.pop_front();
        return first;
    }
    /// Drops the waiting orders and ends this number of threads.
    void end(int threads)
    {
        const QMutexLocker locker(&myMutex);
        myOrders.insert(myOrders.begin(), std::size_t(threads), nullptr);
        mySize.release(threads);
    }

private:
    QMutex myMutex;
    std::deque<std::shared_ptr<Order>> myOrders;
    QSemaphore mySize;
};

/// Executes one order after the other.
class Worker : public QRunnable
{
public:
    explicit Worker(OrderQueue *queue) : myQueue(queue) { }

    void run() override
    {
        while (const std::shared_ptr<Order> order = myQueue->take())
            order->run();
    }

private:
    OrderQueue *myQueue;
};

/// The threads of one reading, at most as many as are useful.
class Workers
{
    Q_DISABLE_COPY_MOVE(Workers)

public:
    explicit Workers(int most) : myMost(most) { myPool.setMaxThreadCount(most); }
    /// Drops the waiting orders and waits for the running ones.
    ~Workers() { myQueue.end(myThreads); }

    void add(const std::shared_ptr<Order> &order)
    {
        myQueue.add(order);
        if (myThreads == myMost)
            return;
        ++myThreads;
        myPool.start(new Worker(&myQueue));
    }

private:
    OrderQueue myQueue;
    QThreadPool myPool; // is destroyed first, and waits for its threads
    const int myMost;
    int myThreads = 0;
};

}

class RVCatalogueReaderPrivate
{
    Q_DECLARE_TR_FUNCTIONS(RVCatalogueReader)
    Q_DISABLE_COPY_MOVE(RVCatalogueReaderPrivate)

public:
    explicit RVCatalogueReaderPrivate(const QString &fileName) : myFile(fileName), myDevice(&myFile)
    {
        if (!myFile.open(QIODevice::ReadOnly))
            myOpenError = RVXmlScanner::openError(myFile);
    }
    explicit RVCatalogueReaderPrivate(QIODevice *device) : myDevice(device) { }

    /// The file is checked alone if @p files is null.
    void setCheck(const RVCatalogueCheck &check, RVCatalogueFileSet *files, const QString &fileName);

    void setThreadCount(int count) { myThreadCount = qMax(count, 1); }
    int threadCount() const { return myThreadCount; }

    /// True when a product follows. Calls @p beforeWaiting, if there is one, before it waits for more data from a pipe,
    /// and continues if that returns true.
    bool fill(const std::function<bool()> &beforeWaiting = nullptr);
    /// The next products that were parsed together; none at the end.
    QList<RVCatalogueProduct> read();
    /// True when no product follows; false if it would have to wait to find out.
    bool isAtEnd();
    RVCatalogueProduct next();
    /// Gives the products their findings, on any thread.
    void check(const QList<RVCatalogueProduct> &products) const;
    QList<RVCatalogueFinding> findings();

    QString errorString() const;
    RVFilePosition errorPosition() const { return myScanner.errorPosition(); }
    qint64 bytesRead() const { return myScanner.bytesRead(); }
    qint64 size() const { return myDevice->isSequential() ? 0 : myDevice->size(); }

private:
    bool isExhausted() const { return myNext == myProducts.size(); }
    bool wouldWait() const;
    bool scan();
    void judgeGroups();
    bool isMissing() const;
    void findDuplicates(const RVCatalogueProduct &product);
    void check(const RVCatalogueProduct &product) const;

    QFile myFile;
    QIODevice *myDevice;
    QString myOpenError;
    RVCatalogueParser myParser;
    RVXmlScanner myScanner { myDevice, &myParser };
    std::optional<RVCatalogueCheck> myCheck;
    std::optional<RVGroupSilence> myGroupSilence;
    std::unique_ptr<RVCatalogueFileSet> myOwnFiles; // null if the file is checked with others
    RVDuplicates *myDuplicates = nullptr;
    QString myFileName; // for findings in other files
    bool myIsFileBegun = false; // for the search of duplicates
    int myThreadCount = mostThreads();
    QList<RVCatalogueProduct> myProducts; // the parsed products
    qsizetype myNext = 0; // the index of the next product to return
    bool myHasProducts = false;
};

// A device without that information counts as one that waits, which only costs time.
bool RVCatalogueReaderPrivate::wouldWait() const
{
    return myDevice->isSequential() && myDevice->bytesAvailable() == 0 && !myDevice->waitForReadyRead(0);
}

void RVCatalogueReaderPrivate::setCheck(const RVCatalogueCheck &check, RVCatalogueFileSet *files,
                                        const QString &fileName)
{
    myOwnFiles = files ? nullptr : std::make_unique<RVCatalogueFileSet>();
    myDuplicates = (files ? files : myOwnFiles.get())->d.get();
    myFileName = fileName.isNull() ? myFile.fileName() : fileName;
    myCheck = check;
    myGroupSilence.emplace(check);
}

bool RVCatalogueReaderPrivate::fill(const std::function<bool()> &beforeWaiting)
{
    bool goesOn = myOpenError.isEmpty();
    while (isExhausted() && goesOn) {
        if (beforeWaiting && wouldWait() && !beforeWaiting())
            return false;
        goesOn = scan();
    }
    myHasProducts = myHasProducts || !isExhausted();
    return !isExhausted();
}

/// Parses on; false at the end.
bool RVCatalogueReaderPrivate::scan()
{
    const bool goesOn = myScanner.scan();
    if (!goesOn && myScanner.errorString().isEmpty())
        myParser.end();
    myProducts = myParser.take();
    myNext = 0;
    judgeGroups();
    return goesOn;
}

void RVCatalogueReaderPrivate::judgeGroups()
{
    const std::vector<RVSuppressionScope::Pointer> closed = myParser.takeClosedScopes();
    if (myGroupSilence)
        myGroupSilence->add(closed);
}

QList<RVCatalogueProduct> RVCatalogueReaderPrivate::read()
{
    if (!fill())
        return {};
    const QList<RVCatalogueProduct> result = myProducts.sliced(std::exchange(myNext, 0));
    myProducts.clear();
    for (const RVCatalogueProduct &product : result)
        findDuplicates(product);
    return result;
}

bool RVCatalogueReaderPrivate::isAtEnd()
{
    bool waits = false;
    const bool isFilled = fill([&waits] {
        waits = true;
        return false;
    });
    return !isFilled && !waits;
}

RVCatalogueProduct RVCatalogueReaderPrivate::next()
{
    if (!fill())
        return RVCatalogueProduct();
    const RVCatalogueProduct product = std::move(myProducts[myNext++]);
    findDuplicates(product);
    if (myCheck)
        check({ product });
    return product;
}

// Duplicates are found in the order of the file, so this happens before the products go to several threads.
void RVCatalogueReaderPrivate::findDuplicates(const RVCatalogueProduct &product)
{
    if (!myCheck)
        return;
    if (!std::exchange(myIsFileBegun, true))
        myDuplicates->beginFile(myFileName);
    product.d->findings = myDuplicates->findings(*myCheck, product);
}

void RVCatalogueReaderPrivate::check(const QList<RVCatalogueProduct> &products) const
{
    if (!myCheck)
        return;
    for (const RVCatalogueProduct &product : products)
        check(product);
}

void RVCatalogueReaderPrivate::check(const RVCatalogueProduct &product) const
{
    QList<RVCatalogueFinding> &findings = product.d->findings;
    findings += myCheck->allFindings(product);
    rvSort(&findings);
    if (RVSilencer::isNeeded(product))
        findings = RVSilencer(*myCheck, product).judged(findings);
}

QList<RVCatalogueFinding> RVCatalogueReaderPrivate::findings()
{
    if (!myCheck)
        return {};
    judgeGroups();
    const QList<RVCatalogueFinding> strays = myParser.strayElements().findings(*myCheck);
    const RVCatalogueRule rule = RVCatalogueRuleRow::rule(RVCatalogueRuleId::ProductsMissing);
    const bool isTold = !myCheck->isEnabled(rule) || myParser.isMissingSilenced()
            || RVStrayElements::haveProduct(strays);
    QList<RVCatalogueFinding> result;
    if (isMissing() && !isTold) {
        result += RVCatalogueFinding(rule, RVFileRange(), tr("there is no product in this file"));
        result.last().setSeverity(myCheck->severity(rule));
    }
    result += strays + myGroupSilence->findings();
    rvSort(&result);
    return result;
}

bool RVCatalogueReaderPrivate::isMissing() const
{
    return myScanner.isAtEnd() && errorString().isEmpty() && !myHasProducts;
}

// An error is reported after the products that were parsed before it.
QString RVCatalogueReaderPrivate::errorString() const
{
    if (!myOpenError.isEmpty())
        return myOpenError;
    return isExhausted() ? myScanner.errorString() : QString();
}

RVCatalogueReader::RVCatalogueReader(const QString &fileName) : d(std::make_unique<RVCatalogueReaderPrivate>(fileName))
{ }

RVCatalogueReader::RVCatalogueReader(QIODevice *device) : d(std::make_unique<RVCatalogueReaderPrivate>(device)) { }

RVCatalogueReader::~RVCatalogueReader() = default;

void RVCatalogueReader::setCheck(const RVCatalogueCheck &check)
{
    d->setCheck(check, nullptr, QString());
}

void RVCatalogueReader::setCheck(const RVCatalogueCheck &check, RVCatalogueFileSet *files, const QString &fileName)
{
    d->setCheck(check, files, fileName);
}

void RVCatalogueReader::setThreadCount(int count)
{
    d->setThreadCount(count);
}

RVCatalogueProduct RVCatalogueReader::next()
{
    return d->next();
}

QList<RVCatalogueProduct> RVCatalogueReader::readAll()
{
    QList<RVCatalogueProduct> result;
    while (d->fill()) {
        const QList<RVCatalogueProduct> products = d->read();
        d->check(products);
        result += products;
    }
    return result;
}

RVCatalogueProduct RVCatalogueReader::find(const RVProductType &type)
{
    RVCatalogueProduct product = next();
    while (!product.isNull() && product.type() != type)
        product = next();
    return product;
}

bool RVCatalogueReader::finish()
{
    while (!d->read().isEmpty()) { }
    return !hasError();
}

QList<RVCatalogueFinding> RVCatalogueReader::findings() const
{
    return d->findings();
}

bool RVCatalogueReader::atEnd()
{
    return !d->fill();
}

bool RVCatalogueReader::hasError() const
{
    return !d->errorString().isEmpty();
}

QString RVCatalogueReader::errorString() const
{
    return d->errorString();
}

RVFilePosition RVCatalogueReader::errorPosition() const
{
    return hasError() ? d->errorPosition() : RVFilePosition();
}

qint64 RVCatalogueReader::bytesRead() const
{
    return d->bytesRead();
}

qint64 RVCatalogueReader::size() const
{
    return d->size();
}

void RVCatalogueReader::mapAny(const std::function<AnyResult(const QList<RVCatalogueProduct> &)> &work,
                               const std::function<bool(const AnyResult &)> &take)
{
    const Order::Work checkedWork = [this, &work](const QList<RVCatalogueProduct> &products) {
        d->check(products);
        return work(products);
    };
    std::deque<std::shared_ptr<Order>> orders;
    const int threads = d->threadCount();
    Workers workers(threads);
    const auto takeFirst = [&] {
        const AnyResult result = orders.front()->result();
        orders.pop_front();
        return take(result);
    };
    bool goesOn = true;
    // Finished results are not held back while a pipe has no input.
    const auto takeAll = [&] {
        while (goesOn && !orders.empty())
            goesOn = takeFirst();
        return goesOn;
    };
    while (goesOn && d->fill(takeAll)) {
        orders.push_back(std::make_shared<Order>(d->read(), checkedWork));
        // A small catalogue is finished before a thread would have started.
        if (orders.size() == 1 && d->isAtEnd())
            orders.front()->run();
        else
            workers.add(orders.back());
        if (orders.size() >= std::size_t(threads) * 2)
            goesOn = takeFirst();
    }
    takeAll();
}
