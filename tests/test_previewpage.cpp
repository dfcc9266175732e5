#include "TestSupport.h"
#include <QApplication>

class Test : public QObject {
    Q_OBJECT
private slots:
    void placeholder() {}
};

QL_TEST_MAIN(Test)
#include "test_previewpage.moc"
